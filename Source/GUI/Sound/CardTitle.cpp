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
    isPressed = ! event.mods.isPopupMenu();

    if (! isPressed)
        button.showMenu();
}

void CardTitle::mouseDrag (const juce::MouseEvent& event)
{
    if (! isPressed || ! event.mouseWasDraggedSinceMouseDown())
        return;

    if (! focus)
        focus.emplace (*this);

    setMouseCursor (juce::MouseCursor::CopyingCursor);
    dragged (event.getScreenPosition());
}

void CardTitle::mouseUp (const juce::MouseEvent& event)
{
    if (! isPressed)
        return;

    endDrag();

    if (event.mouseWasDraggedSinceMouseDown())
        dropped (event.getScreenPosition(), event.mods.isAltDown());
    else
        button.setOn (! button.isOn());
}

bool CardTitle::keyPressed (const juce::KeyPress& key)
{
    if (! focus || key != juce::KeyPress (juce::KeyPress::escapeKey))
        return false;

    endDrag();
    dragged ({});
    return true;
}

void CardTitle::endDrag()
{
    isPressed = false;
    setMouseCursor (juce::MouseCursor::PointingHandCursor);
    focus.reset();
}
} // namespace Zn::GUI
