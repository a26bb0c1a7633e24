#pragma once

#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Popup.h"
#include "Presets/Reflection/Version.h"

namespace Zn::GUI
{
/** Tells once, after an update, that there is something new. Thread: message. */
class UpdateNotice : public Popup
{
public:
    explicit UpdateNotice (EditorContext& contextToUse);

    /** Where the version that ran last is kept. */
    static juce::File defaultFile();

    /** Whether an older version ran last; keeps this one in its place. Where there is no file, or none that can be
        read, nothing is told.
    */
    static bool isDue (const juce::File& file, const Version& running);

    void paint (juce::Graphics& g) override;

private:
    Button news, closeButton;
};
} // namespace Zn::GUI
