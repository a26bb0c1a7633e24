#include "GUI/Sound/CardTitle.h"

namespace Zn::GUI
{
CardTitle::CardTitle (Toggle& buttonToFlip, Dragged draggedToUse, Dropped droppedToUse)
    : button (buttonToFlip), dragged (std::move (draggedToUse)), dropped (std::move (droppedToUse))
{
    setAccessible (false);
    setMouseCursor (juce::MouseCursor::PointingHandCursor);
}

TooltipText CardTitle::getTooltipText() const
{
    auto tooltip = button.getTooltipText();
    tooltip.help << " Drag: copy onto another. Alt: swap.";
    return tooltip;
}

void CardTitle::mouseDown (const juce::MouseEvent& event)
{
    if (event.mods.isPopupMenu())
        button.showMenu();
}

void CardTitle::mouseDrag (const juce::MouseEvent& event)
{
    if (event.mods.isPopupMenu() || ! event.mouseWasDraggedSinceMouseDown())
        return;

    setMouseCursor (juce::MouseCursor::CopyingCursor);
    dragged (event.getScreenPosition());
}

void CardTitle::mouseUp (const juce::MouseEvent& event)
{
    setMouseCursor (juce::MouseCursor::PointingHandCursor);

    if (event.mods.isPopupMenu())
        return;

    if (event.mouseWasDraggedSinceMouseDown())
        dropped (event.getScreenPosition(), event.mods.isAltDown());
    else
        button.setOn (! button.isOn());
}
} // namespace Zn::GUI
