#include "GUI/Pattern/LaneTool.h"

#include "GUI/Pattern/NoteEdits.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
/** On the straight line between two places of the pointer; level beyond them. */
float valueBetween (const LanePointer& from, const LanePointer& to, double time)
{
    const auto way = to.time - from.time;
    const auto part = way == 0.0 ? 1.0 : std::clamp ((time - from.time) / way, 0.0, 1.0);
    return from.value + static_cast<float> (part) * (to.value - from.value);
}
} // namespace

void LaneTool::down (const LanePointer& pointer)
{
    editor.endDrag();

    value = laneValue.get();
    pressed = last = pointer;
    hasDragged = false;
    painted.clear();

    if (pointer.note >= 0)
        action = pointer.modifiers.isAltDown() ? Action::spread : Action::handle;
    else
        action = pointer.modifiers.isShiftDown() ? Action::ramp : Action::paint;

    editor.beginDrag ("Paint " + nameOf (value).toLowerCase());

    if (action == Action::paint)
        paint (pointer);
    else if (action == Action::ramp)
        drawRamp (pointer);
}

void LaneTool::drag (const LanePointer& pointer)
{
    hasDragged = true;

    if (action == Action::paint)
        paint (pointer);
    else if (action == Action::ramp)
        drawRamp (pointer);
    else if (action == Action::handle)
        moveHandle (pointer.value - pressed.value);
    else if (action == Action::spread)
        openSpread (pointer.value - pressed.value);

    last = pointer;
}

void LaneTool::up (const LanePointer&)
{
    const auto isDoubleClick = action == Action::handle && ! hasDragged && pressed.numClicks == 2;
    editor.endDrag();
    action = Action::none;

    if (isDoubleClick)
        editor.perform ("Reset " + nameOf (value).toLowerCase(), [&] (Drawing& drawing) {
            NoteEdits::changeEvents (drawing, { pressed.note }, [this] (auto& event) {
                setValue (event, value, defaultOf (value));
            });
        });
}

bool LaneTool::cancel()
{
    if (! isDragging())
        return false;

    editor.cancelDrag();
    action = Action::none;
    return true;
}

RollReadout LaneTool::getReadout() const
{
    if (! isDragging())
        return {};

    const auto& drawing = editor.getDrawing();
    const auto* event = drawing.hasNote (pressed.note) ? &drawing.note (pressed.note).event : nullptr;

    if (action == Action::spread && event != nullptr)
        return { "Spread", juce::String::fromUTF8 ("±") + percentText (spreadOf (*event)) };

    const auto inHand = event != nullptr ? valueOf (*event, value) : std::clamp (last.value, 0.0f, 1.0f);
    return { nameOf (value), percentText (inHand) };
}

void LaneTool::paint (const LanePointer& to)
{
    const auto left = std::min (last.time, to.time), right = std::max (last.time, to.time);
    const auto& notes = editor.getDrawingAtPress().notes;

    for (std::size_t i = 0; i < notes.size(); ++i)
        if (const auto start = notes[i].time.start; start >= left - to.reach && start <= right + to.reach)
            painted.insert_or_assign (static_cast<int> (i), valueBetween (last, to, start));

    apply();
}

void LaneTool::drawRamp (const LanePointer& to)
{
    last = pressed;
    painted.clear();
    paint (to);
}

void LaneTool::moveHandle (float by)
{
    editor.updateDrag ([&] (Drawing& drawing) {
        if (! drawing.hasNote (pressed.note))
            return;

        const auto before = valueOf (drawing.note (pressed.note).event, value);
        const auto after = std::clamp (before + by, 0.0f, 1.0f);

        NoteEdits::changeEvents (drawing,
                                 NoteQueries::selectionOr (drawing, pressed.note),
                                 [&] (auto& event) {
                                     const auto old = valueOf (event, value);
                                     setValue (event, value, before > 0.0f ? old * after / before : old + by);
                                 });
    });
}

void LaneTool::openSpread (float by)
{
    editor.updateDrag ([&] (Drawing& drawing) {
        NoteEdits::changeEvents (drawing,
                                 NoteQueries::selectionOr (drawing, pressed.note),
                                 [&] (auto& event) { setSpread (event, std::abs (spreadOf (event) + by)); });
    });
}

void LaneTool::apply()
{
    editor.updateDrag ([&] (Drawing& drawing) {
        for (const auto& [note, newValue] : painted)
            setValue (drawing.note (note).event, value, newValue);
    });
}
} // namespace Zn::GUI
