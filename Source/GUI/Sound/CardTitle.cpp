#include "GUI/Sound/CardTitle.h"

namespace Zn::GUI
{
CardTitle::CardTitle (Toggle& buttonToFlip, Dragged draggedToUse, Dropped droppedToUse)
    : button (buttonToFlip), dragged (std::move (draggedToUse)), dropped (std::move (droppedToUse))
{
    setAccessible (false);
}

TooltipText CardTitle::getTooltipText() const
{
    auto tooltip = button.getTooltipText();
    tooltip.help << " Drag: copy onto another. Alt: swap.";
    return tooltip;
}

void CardTitle::mouseDown (const juce::MouseEvent& event)
{
    gesture.press (event);

    if (event.mods.isPopupMenu())
        button.showMenu();
}

void CardTitle::mouseDrag (const juce::MouseEvent& event)
{
    if (gesture.move (event))
        gesture.showWhetherItDrops (dragged (event.getScreenPosition()));
}

void CardTitle::mouseUp (const juce::MouseEvent& event)
{
    const auto end = gesture.release (event);

    if (end == CarryGesture::End::drop)
        dropped (event.getScreenPosition(), event.mods.isAltDown());
    else if (end == CarryGesture::End::click)
        button.setOn (! button.isOn());
}

bool CardTitle::keyPressed (const juce::KeyPress& key)
{
    if (! gesture.giveUp (key))
        return false;

    dragged ({});
    return true;
}
} // namespace Zn::GUI
