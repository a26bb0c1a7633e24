#pragma once

#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The words of an oscillator's power button: a click flips it, a drag takes the oscillator along. Without a look of its
    own, and nothing for the keyboard, which has the button. Thread: message.
*/
class CardTitle : public juce::Component, public TooltipSource
{
public:
    using Dragged = std::function<void (juce::Point<int> onScreen)>;
    using Dropped = std::function<void (juce::Point<int> onScreen, bool swaps)>;

    CardTitle (Toggle& buttonToFlip, Dragged draggedToUse, Dropped droppedToUse);

    TooltipText getTooltipText() const override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;

private:
    Toggle& button;
    const Dragged dragged;
    const Dropped dropped;
};
} // namespace Zn::GUI
