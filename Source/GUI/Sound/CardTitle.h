#pragma once

#include "GUI/Widgets/BorrowedFocus.h"
#include "GUI/Widgets/Toggle.h"

#include <optional>

namespace Zn::GUI
{
/** The words of an oscillator's power button: a click flips it, a drag takes the oscillator along until Esc. Without a
    look of its own, and nothing else for the keyboard, which has the button. Thread: message.
*/
class CardTitle : public juce::Component, public TooltipSource
{
public:
    using Dragged = std::function<void (std::optional<juce::Point<int>> onScreen)>; // none: no longer
    using Dropped = std::function<void (juce::Point<int> onScreen, bool swaps)>;

    CardTitle (Toggle& buttonToFlip, Dragged draggedToUse, Dropped droppedToUse);

    TooltipText getTooltipText() const override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;

private:
    void endDrag();

    Toggle& button;
    const Dragged dragged;
    const Dropped dropped;
    bool isPressed = false;             // and not ended by a key
    std::optional<BorrowedFocus> focus; // while it is dragged
};
} // namespace Zn::GUI
