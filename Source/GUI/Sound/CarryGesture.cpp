#include "GUI/Sound/CarryGesture.h"

namespace Zn::GUI
{
CarryGesture::CarryGesture (juce::Component& componentToCarry) : component (componentToCarry)
{
    component.setMouseCursor (juce::MouseCursor::PointingHandCursor);
}

void CarryGesture::press (const juce::MouseEvent& event)
{
    isPressed = ! event.mods.isPopupMenu();
}

bool CarryGesture::move (const juce::MouseEvent& event)
{
    if (! isPressed || ! event.mouseWasDraggedSinceMouseDown())
        return false;

    if (! focus)
        focus.emplace (component);

    return true;
}

void CarryGesture::showWhetherItDrops (bool drops)
{
    component.setMouseCursor (drops ? juce::MouseCursor (juce::MouseCursor::CopyingCursor) : noEntry.get());
}

CarryGesture::End CarryGesture::release (const juce::MouseEvent& event)
{
    if (! isPressed)
        return End::none;

    end();
    return event.mouseWasDraggedSinceMouseDown() ? End::drop : End::click;
}

bool CarryGesture::giveUp (const juce::KeyPress& key)
{
    if (! focus || key != juce::KeyPress (juce::KeyPress::escapeKey))
        return false;

    end();
    return true;
}

void CarryGesture::end()
{
    isPressed = false;
    component.setMouseCursor (juce::MouseCursor::PointingHandCursor);
    focus.reset();
}
} // namespace Zn::GUI
