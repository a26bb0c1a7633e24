#include "GUI/Pattern/DrawTool.h"

#include "GUI/Pattern/NoteEdits.h"

namespace Zn::GUI
{
namespace
{
bool hasNoteIn (const Drawing& drawing, const Ranges::Span& cell, int row)
{
    return std::any_of (drawing.notes.begin(), drawing.notes.end(), [&] (const auto& note) {
        return note.event.noteNum == row && note.time.start >= cell.start && note.time.start < cell.end();
    });
}
} // namespace

void DrawTool::down (const RollPointer& pointer)
{
    pressed = pointer;
    hasDragged = false;

    if (pointer.note >= 0)
    {
        action = Action::move;
        editor.beginDrag ("Move notes");
        return;
    }

    editor.select ({});
    editor.beginDrag ("Draw notes");
    action = pointer.modifiers.isShiftDown() ? Action::line : Action::add;
    line.clear();
    lineEnd = pointer.at;
    action == Action::line ? continueLine (pointer.at) : addNote (pointer);
}

void DrawTool::drag (const RollPointer& pointer)
{
    hasDragged = true;

    if (action == Action::add)
        addNote (pointer);
    else if (action == Action::line)
        continueLine (pointer.at);
    else
        moveNote (pointer);
}

void DrawTool::up (const RollPointer& pointer)
{
    if (action == Action::move && ! hasDragged && editor.isDragging())
        clickNote (pointer);
    else
        editor.endDrag();
}

RollCursor DrawTool::cursorAt (const RollPointer& pointer) const
{
    return pointer.note < 0 ? RollCursor::pencil : RollCursor::hand;
}

void DrawTool::addNote (const RollPointer& pointer)
{
    const auto grid = editor.getGrid (pointer.modifiers.isAltDown());

    editor.updateDrag ([&] (Drawing& drawing) {
        const auto note = NoteEdits::add (drawing, NoteEdits::newNote (drawing, grid, pressed.at));

        if (hasDragged)
            NoteEdits::lengthenTo (drawing, grid, note, pointer.at.time);
    });
}

void DrawTool::continueLine (RollPoint to)
{
    const auto columns = editor.getGrid().columns;
    const auto columnOf = [&] (RollPoint point) {
        return std::clamp (static_cast<int> (std::floor (point.time * columns)), 0, columns - 1);
    };

    const auto from = lineEnd;
    const auto first = columnOf (from), last = columnOf (to);
    const auto step = first <= last ? 1 : -1;

    for (auto column = first; column != last; column += step)
    {
        const auto part = static_cast<double> (column - first) / (last - first);
        line.insert_or_assign (column,
                               RollPoint { .row = from.row + part * (to.row - from.row) }.nearestRow());
    }

    line.insert_or_assign (last, to.nearestRow());
    lineEnd = to;

    editor.updateDrag ([&] (Drawing& drawing) {
        const NoteGrid grid { .columns = columns };

        for (const auto& [column, row] : line)
        {
            const auto note =
                NoteEdits::newNote (drawing,
                                    grid,
                                    { (column + 0.5) * grid.column(), static_cast<double> (row) });

            if (! hasNoteIn (drawing, { note.time.start, grid.column() }, row))
                NoteEdits::add (drawing, note);
        }
    });
}

void DrawTool::moveNote (const RollPointer& pointer)
{
    const auto rows = static_cast<int> (std::floor (pointer.at.row) - std::floor (pressed.at.row));

    editor.updateDrag ([&] (Drawing& drawing) {
        const auto selection = drawing.selection;
        drawing.selection = NoteQueries::selectionOr (drawing, pressed.note);
        NoteEdits::moveSelected (drawing,
                                 editor.getGrid (pointer.modifiers.isAltDown()),
                                 pressed.note,
                                 pointer.at.time - pressed.at.time,
                                 rows);
        drawing.selection = selection;
    });
}

void DrawTool::clickNote (const RollPointer& pointer)
{
    editor.cancelDrag();

    if (pointer.modifiers.isAltDown())
        editor.perform ("Switch notes", [&] (Drawing& drawing) {
            NoteEdits::toggleEnabled (drawing, NoteQueries::selectionOr (drawing, pressed.note));
        });
    else
        editor.perform ("Erase note",
                        [&] (Drawing& drawing) { NoteEdits::erase (drawing, { pressed.note }); });
}
} // namespace Zn::GUI
