#pragma once

#include "GUI/Sound/CarryGesture.h"
#include "GUI/Widgets/Toggle.h"

namespace Zn::GUI
{
/** The words of an oscillator's power button, lying on it: a click flips it, a drag takes the oscillator along until Esc.
    Without a look of its own, and nothing else for the keyboard, which has the button. Thread: message.
*/
class CardTitle : public juce::Component, public TooltipSource
{
public:
    /** None: no longer. Whether a drop there would do anything. */
    using Dragged = std::function<bool (std::optional<juce::Point<int>> onScreen)>;
    using Dropped = std::function<void (juce::Point<int> onScreen, bool swaps)>;

    CardTitle (Toggle& buttonToFlip, Dragged draggedToUse, Dropped droppedToUse);

    TooltipText getTooltipText() const override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;

private:
    Toggle& button;
    const Dragged dragged;
    const Dropped dropped;
    CarryGesture gesture { *this };
};
} // namespace Zn::GUI
