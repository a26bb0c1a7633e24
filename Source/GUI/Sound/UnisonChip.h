#pragma once

#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** Tells how many voices an oscillator has, where there is more than one. A click leads to where that is set.
    Thread: message.
*/
class UnisonChip : public Control
{
public:
    UnisonChip (EditorContext& contextToUse, std::string element, CallbackFunc onClickToUse);

    void schemeChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    void poll() override;

    const CallbackFunc onClick;
    int numVoices = 0;
    juce::String text;
    juce::Font font;
};
} // namespace Zn::GUI
