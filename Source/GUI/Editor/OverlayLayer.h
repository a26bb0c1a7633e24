#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Widgets/Overlay.h"
#include "GUI/Widgets/UserSettings.h"

namespace Zn::GUI
{
/** Lies over the whole page, lets the pointer through where it is empty, and holds what comes up. Thread: message. */
class OverlayLayer : public juce::Component, public Overlay
{
public:
    OverlayLayer (juce::Component& pageToCover,
                  AssetScheme::Canvas& canvasToUse,
                  UserSettings& settingsToUse);

    void openPopup (std::unique_ptr<juce::Component> newPopup) override;
    void closePopup() override;
    juce::Component* getPopup() const noexcept override { return popup.get(); }
    void showMenu (const Parameters::MenuItems::Item& menu, juce::Component* beside) override;
    void showMenu (const juce::PopupMenu& menu,
                   juce::Component* beside,
                   std::function<void (int)> chosen) override;
    void
    showReadout (const juce::String& name, const juce::String& value, juce::Point<int> onScreen) override;
    void hideReadout() override;
    void showMessage (const juce::String& text, const juce::String& actionText, CallbackFunc action) override;
    void enterValue (juce::Component& over,
                     const juce::String& text,
                     std::function<bool (const juce::String&)> accept,
                     CallbackFunc next) override;

private:
    juce::Component& page;
    AssetScheme::Canvas& canvas;
    UserSettings& settings;
    std::unique_ptr<juce::Component> popup;
};
} // namespace Zn::GUI
