#include "GUI/Arp/DragMidi.h"

namespace Zn::GUI
{
DragMidi::DragMidi (EditorContext& contextToUse)
    : Button (
        contextToUse,
        "DragMidi",
        { .text = controlText ("DragMidi").label, .icon = "drag.svg", .accent = "Midi", .fill = "MidiDeep" },
        [this] { slotExport.saveAs (context.shownSlot.get()); })
    , slotExport (contextToUse)
{
    setMouseCursor (juce::MouseCursor::DraggingHandCursor);
}

void DragMidi::mouseDown (const juce::MouseEvent& event)
{
    isOut = false;
    Button::mouseDown (event);
}

void DragMidi::mouseDrag (const juce::MouseEvent& event)
{
    constexpr auto threshold = 4; // pixels

    if (isOut || ! isPressed() || event.getDistanceFromDragStart() < threshold)
        return;

    isOut = true;
    setPressed (false);
    slotExport.drag (context.shownSlot.get(), *this);
}

void DragMidi::mouseUp (const juce::MouseEvent& event)
{
    if (! isOut)
        Button::mouseUp (event);
}
} // namespace Zn::GUI
