#pragma once

#include "GUI/Header/Logo.h"
#include "GUI/Widgets/Label.h"
#include "GUI/Widgets/Popup.h"

namespace Zn::GUI
{
/** What this is, whose it is and how to tell about it. Thread: message. */
class AboutPopup : public Popup
{
public:
    explicit AboutPopup (EditorContext& contextToUse);

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;

private:
    LogoPainter logo;
    Label version;
    juce::Font font;
    juce::Rectangle<int> textArea;
    Button licences, news, copy, closeButton;
};

/** Version, system and host, for those who report a fault. */
juce::String programDetails();
} // namespace Zn::GUI
