#include "GUI/Pattern/ValueTool.h"

#include "GUI/Pattern/NoteEdits.h"

namespace Zn::GUI
{
namespace
{
constexpr auto fullRange = 150.0f; // pixels of a drag up or down
}

void ValueTool::down (const RollPointer& pointer)
{
    pressed = pointer;
    brush = pointer.at;
    painted = {};
    action = pointer.note < 0 ? Action::paint : Action::undecided;

    if (editor.getDrawing().hasNote (pointer.note))
        inHand = valueOf (editor.getDrawing().note (pointer.note).event, value);

    editor.beginDrag ("Paint " + nameOf (value).toLowerCase());
}

void ValueTool::drag (const RollPointer& pointer)
{
    if (action == Action::undecided)
        action = actionFor (pointer);

    const auto amount = -pointer.moved.y / fullRange;

    if (action == Action::change)
        change (amount);
    else if (action == Action::spread)
        spread (amount);
    else
        paint (pointer.at);
}

void ValueTool::up (const RollPointer&)
{
    const auto& drawing = editor.getDrawing();

    if (action == Action::change && editor.isDragging() && drawing.hasNote (pressed.note))
        inHand = valueOf (drawing.note (pressed.note).event, value);

    editor.endDrag();
    action = Action::undecided;
}

void ValueTool::doubleClick (const RollPointer& pointer)
{
    editor.perform ("Reset " + nameOf (value).toLowerCase(), [&] (Drawing& drawing) {
        NoteEdits::changeEvents (drawing,
                                 NoteQueries::selectionOr (drawing, pointer.note),
                                 [this] (auto& event) { setValue (event, value, defaultOf (value)); });
    });

    inHand = defaultOf (value);
}

RollCursor ValueTool::cursorAt (const RollPointer& pointer) const
{
    return pointer.note < 0 ? RollCursor::pencil : RollCursor::upDown;
}

RollReadout ValueTool::getReadout() const
{
    const auto& drawing = editor.getDrawing();

    if (action == Action::spread && drawing.hasNote (pressed.note))
        return { "Spread",
                 juce::String::fromUTF8 ("±") + percentText (spreadOf (drawing.note (pressed.note).event)) };

    if (action == Action::change && drawing.hasNote (pressed.note))
        return { nameOf (value), percentText (valueOf (drawing.note (pressed.note).event, value)) };

    return { nameOf (value), percentText (inHand) };
}

ValueTool::Action ValueTool::actionFor (const RollPointer& pointer) const noexcept
{
    if (pointer.modifiers.isAltDown())
        return Action::spread;

    return std::abs (pointer.moved.x) > std::abs (pointer.moved.y) ? Action::paint : Action::change;
}

void ValueTool::change (float amount)
{
    editor.updateDrag ([&] (Drawing& drawing) {
        NoteEdits::changeEvents (
            drawing,
            NoteQueries::selectionOr (drawing, pressed.note),
            [&] (auto& event) { setValue (event, value, valueOf (event, value) + amount); });
    });
}

void ValueTool::spread (float amount)
{
    editor.updateDrag ([&] (Drawing& drawing) {
        NoteEdits::changeEvents (drawing,
                                 NoteQueries::selectionOr (drawing, pressed.note),
                                 [&] (auto& event) { setSpread (event, spreadOf (event) + amount); });
    });
}

void ValueTool::paint (RollPoint to)
{
    painted.add (NoteQueries::notesBetween (editor.getDrawingAtPress(), brush, to));
    brush = to;

    editor.updateDrag ([&] (Drawing& drawing) {
        NoteEdits::changeEvents (drawing, painted, [&] (auto& event) { setValue (event, value, inHand); });
    });
}
} // namespace Zn::GUI
