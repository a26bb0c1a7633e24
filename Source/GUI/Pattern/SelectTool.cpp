#include "GUI/Pattern/SelectTool.h"

#include "GUI/Pattern/NoteEdits.h"

#include <iterator>

namespace Zn::GUI
{
namespace
{
/** Where the copy of a selected note will be once all of them are copied. */
int copyOf (const Drawing& drawing, int note)
{
    const auto& selection = drawing.selection;
    const auto place =
        std::distance (selection.begin(), std::find (selection.begin(), selection.end(), note));
    return drawing.numNotes() + static_cast<int> (place);
}

bool isAtPlaceOf (const Sequencer::TimedNote& note, const Sequencer::TimedNote& other)
{
    return note.time.start == other.time.start && note.event.noteNum == other.event.noteNum;
}
} // namespace

void LassoTool::down (const RollPointer& pointer)
{
    corner = pointer.at;
    before = pointer.modifiers.isShiftDown() ? editor.getDrawing().selection : NoteSelection();
    take (corner);
}

void LassoTool::drag (const RollPointer& pointer)
{
    take (pointer.at);
}

void LassoTool::up (const RollPointer&)
{
    editor.setLasso ({});
}

void LassoTool::take (RollPoint to)
{
    const RollArea area { corner, to };
    auto selection = NoteQueries::notesIn (editor.getDrawing(), area);
    selection.add (before);

    editor.setLasso (area);
    editor.select (selection);
}

void SelectTool::down (const RollPointer& pointer)
{
    pressed = pointer;
    hasDragged = false;

    if (pointer.note < 0)
        return lasso.down (pointer);

    auto selection = editor.getDrawing().selection;
    wasSelected = selection.contains (pointer.note);

    if (! wasSelected)
    {
        if (! pointer.modifiers.isShiftDown())
            selection = {};

        selection.set (pointer.note, true);
        editor.select (selection);
    }

    editor.beginDrag (pointer.isAtEnd                     ? "Lengthen notes"
                      : pointer.modifiers.isCommandDown() ? "Copy notes"
                                                          : "Move notes");
}

void SelectTool::drag (const RollPointer& pointer)
{
    hasDragged = true;

    if (pressed.note < 0)
        return lasso.drag (pointer);

    if (! pressed.isAtEnd)
        return move (pointer);

    editor.updateDrag ([&] (Drawing& drawing) {
        NoteEdits::lengthenSelected (drawing,
                                     editor.getGrid (pointer.modifiers.isAltDown()),
                                     pressed.note,
                                     pointer.at.time - pressed.at.time);
    });
}

void SelectTool::up (const RollPointer& pointer)
{
    if (pressed.note < 0)
        return lasso.up (pointer);

    if (! hasDragged && editor.isDragging())
        clickNote (pointer);

    editor.endDrag();
}

void SelectTool::doubleClick (const RollPointer& pointer)
{
    if (pointer.note >= 0)
    {
        editor.perform ("Erase note",
                        [&] (Drawing& drawing) { NoteEdits::erase (drawing, { pointer.note }); });
        return;
    }

    editor.perform ("Draw note", [&] (Drawing& drawing) {
        const auto grid = editor.getGrid (pointer.modifiers.isAltDown());
        drawing.selection = { NoteEdits::add (drawing, NoteEdits::newNote (drawing, grid, pointer.at)) };
    });
}

RollCursor SelectTool::cursorAt (const RollPointer& pointer) const
{
    if (pointer.note < 0)
        return RollCursor::arrow;

    return pointer.isAtEnd ? RollCursor::sideways : RollCursor::hand;
}

void SelectTool::move (const RollPointer& pointer)
{
    const auto keepsToAxis = pointer.modifiers.isShiftDown();
    const auto goesSideways = std::abs (pointer.moved.x) >= std::abs (pointer.moved.y);
    const auto byTime = keepsToAxis && ! goesSideways ? 0.0 : pointer.at.time - pressed.at.time;
    const auto byRows =
        keepsToAxis && goesSideways ? 0.0 : std::floor (pointer.at.row) - std::floor (pressed.at.row);

    editor.updateDrag ([&] (Drawing& drawing) {
        const auto moveFrom = [&] (int inHand) {
            NoteEdits::moveSelected (drawing,
                                     editor.getGrid (pointer.modifiers.isAltDown()),
                                     inHand,
                                     byTime,
                                     static_cast<int> (byRows));
        };

        if (! pointer.modifiers.isCommandDown())
            return moveFrom (pressed.note);

        const auto before = drawing;
        const auto copy = copyOf (drawing, pressed.note);
        NoteEdits::duplicateInPlace (drawing);
        moveFrom (copy);

        if (! drawing.hasNote (copy) || isAtPlaceOf (drawing.note (copy), drawing.note (pressed.note)))
            drawing = before; // nobody would see or hear that there are two
    });
}

void SelectTool::clickNote (const RollPointer& pointer)
{
    if (! wasSelected)
        return;

    auto selection = editor.getDrawing().selection;

    if (pointer.modifiers.isShiftDown())
        selection.set (pressed.note, false);
    else
        selection = { pressed.note };

    editor.select (selection);
}
} // namespace Zn::GUI
