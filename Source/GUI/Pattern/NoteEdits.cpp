#include "GUI/Pattern/NoteEdits.h"

#include "Sequencer/Modifiers/Limits.h"

#include <algorithm>

namespace Zn::GUI::NoteEdits
{
namespace
{
/** How far the selected notes can go without one of them leaving the pattern. */
struct Room
{
    double left = -1.0, right = 1.0;             // parts of the pattern
    int down = -(numRows - 1), up = numRows - 1; // rows
};

Room roomOf (const Drawing& drawing, const NoteGrid& grid)
{
    Room room;

    for (const auto index : drawing.selection)
    {
        const auto& note = drawing.note (index);
        const auto right = std::min (1.0 - note.time.end(), grid.lastStart() - note.time.start);

        room.left = std::max (room.left, -note.time.start);
        room.right = std::min (room.right, right);
        room.down = std::max (room.down, -note.event.noteNum);
        room.up = std::min (room.up, numRows - 1 - note.event.noteNum);
    }

    return { .left = std::min (room.left, 0.0),
             .right = std::max (room.right, 0.0),
             .down = std::min (room.down, 0),
             .up = std::max (room.up, 0) };
}

int earliest (const Drawing& drawing)
{
    const auto isEarlier = [&] (int a, int b) {
        return drawing.note (a).time.start < drawing.note (b).time.start;
    };
    const auto& selection = drawing.selection;
    const auto first = std::min_element (selection.begin(), selection.end(), isEarlier);
    return first == selection.end() ? -1 : *first;
}

int longest (const Drawing& drawing)
{
    const auto isShorter = [&] (int a, int b) {
        return drawing.note (a).time.length < drawing.note (b).time.length;
    };

    const auto& selection = drawing.selection;
    const auto found = std::max_element (selection.begin(), selection.end(), isShorter);
    return found == selection.end() ? -1 : *found;
}

/** By whole columns, counted from the line next to a start; the last ones that there is room for. */
double snappedMove (double start, double byTime, const NoteGrid& grid, const Room& room)
{
    constexpr auto tolerance = 1.0e-6;
    const auto columns = static_cast<double> (grid.columns);

    if (std::abs (byTime) * columns < 0.5)
        return 0.0;

    const auto leftmost = std::ceil ((start + room.left) * columns - tolerance);
    const auto rightmost = std::floor ((start + room.right) * columns + tolerance);
    const auto line = std::round ((start + byTime) * columns);

    return leftmost > rightmost ? 0.0 : std::clamp (line, leftmost, rightmost) / columns - start;
}

/** Whole columns, the first of which leads to the next line. */
double lineBeyond (double length, double byTime, const NoteGrid& grid)
{
    constexpr auto tolerance = 1.0e-6;
    const auto columns = length * grid.columns;
    const auto line = byTime > 0.0 ? std::floor (columns + tolerance) : std::ceil (columns - tolerance);
    return (line + std::round (byTime * grid.columns)) / grid.columns;
}

double selectedEnd (const Drawing& drawing)
{
    auto end = 0.0;

    for (const auto note : drawing.selection)
        end = std::max (end, drawing.note (note).time.end());

    return end;
}

bool isFull (const Drawing& drawing)
{
    return drawing.numNotes() >= Sequencer::Modifiers::maxNotes;
}

} // namespace

Sequencer::TimedNote newNote (const Drawing& drawing, const NoteGrid& grid, RollPoint at)
{
    Sequencer::TimedNote note;
    note.time = grid.limited ({ .start = grid.snaps ? grid.columnStart (at.time) : at.time,
                                .length = std::min (drawing.noteLength, 1.0) * grid.column() });
    note.event.noteNum = at.nearestRow();
    note.enabled = true;
    return note;
}

int add (Drawing& drawing, const Sequencer::TimedNote& note)
{
    if (isFull (drawing))
        return -1;

    drawing.notes.push_back (note);
    return drawing.numNotes() - 1;
}

void erase (Drawing& drawing, const NoteSelection& notes)
{
    std::vector<Sequencer::TimedNote> kept;
    NoteSelection keptSelection;

    for (auto i = 0; i < drawing.numNotes(); ++i)
    {
        if (notes.contains (i))
            continue;

        keptSelection.set (drawing.selection.contains (i) ? static_cast<int> (kept.size()) : -1, true);
        kept.push_back (drawing.note (i));
    }

    drawing.notes = std::move (kept);
    drawing.selection = std::move (keptSelection);
}

void moveSelected (Drawing& drawing, const NoteGrid& grid, int inHand, double byTime, int byRows)
{
    const auto reference = drawing.hasNote (inHand) ? inHand : earliest (drawing);

    if (reference < 0)
        return;

    const auto room = roomOf (drawing, grid);
    const auto start = drawing.note (reference).time.start;
    const auto delta =
        grid.snaps ? snappedMove (start, byTime, grid, room) : std::clamp (byTime, room.left, room.right);
    const auto rows = std::clamp (byRows, room.down, room.up);

    for (const auto index : drawing.selection)
    {
        auto& note = drawing.note (index);

        if (delta != 0.0)
            note.time.start = std::clamp (grid.tidied (note.time.start + delta), 0.0, grid.lastStart());

        note.event.noteNum += rows;
    }
}

void lengthenSelected (Drawing& drawing, const NoteGrid& grid, int inHand, double byTime)
{
    const auto reference = drawing.hasNote (inHand) ? inHand : longest (drawing);

    if (reference < 0 || (grid.snaps && std::abs (byTime) * grid.columns < 0.5))
        return;

    const auto length = drawing.note (reference).time.length;
    const auto line =
        drawing.hasNote (inHand) ? grid.nearestLine (length + byTime) : lineBeyond (length, byTime, grid);
    const auto snapped = std::max (line, grid.column());
    const auto snappedBy = byTime < 0.0 ? std::min (snapped - length, 0.0) : snapped - length;
    const auto delta = grid.snaps ? snappedBy : byTime;

    for (const auto index : drawing.selection)
    {
        auto& time = drawing.note (index).time;
        const auto least = grid.snaps ? std::min (time.length, grid.column()) : grid.shortest();
        time.length = grid.tidied (std::max (time.length + delta, least));
        time = grid.limited (time);
    }
}

void lengthenTo (Drawing& drawing, const NoteGrid& grid, int note, double time)
{
    if (! drawing.hasNote (note))
        return;

    auto& span = drawing.note (note).time;
    const auto end = grid.snaps ? grid.columnStart (time) + grid.column() : time;
    const auto least = grid.snaps ? grid.column() : grid.shortest();

    if (end - span.start > least * 1.001) // a single column leaves a new note as it is
        span = grid.limited ({ span.start, grid.tidied (end - span.start) });
    else if (! grid.snaps)
        span = grid.limited ({ span.start, least });
}

void setLengthOfSelected (Drawing& drawing, const NoteGrid& grid, double columns)
{
    for (const auto index : drawing.selection)
    {
        auto& time = drawing.note (index).time;
        time = grid.limited ({ time.start, columns * grid.column() });
    }
}

void duplicateInPlace (Drawing& drawing)
{
    NoteSelection copies;

    for (const auto note : drawing.selection)
        copies.set (add (drawing, Sequencer::TimedNote (drawing.note (note))), true);

    drawing.selection = std::move (copies);
}

void duplicateBehind (Drawing& drawing, const NoteGrid& grid)
{
    const auto first = earliest (drawing);

    if (first < 0)
        return;

    const auto start = drawing.note (first).time.start;
    const auto columns = (selectedEnd (drawing) - start) * grid.columns;
    const auto distance = grid.snaps ? std::ceil (columns - 1.0e-6) / grid.columns : columns / grid.columns;
    NoteSelection copies;

    for (const auto index : drawing.selection)
    {
        auto copy = drawing.note (index);
        copy.time.start = grid.tidied (copy.time.start + distance);

        if (copy.time.start > grid.lastStart())
            continue;

        copy.time = grid.limited (copy.time);
        copies.set (add (drawing, copy), true);
    }

    if (! copies.isEmpty())
        drawing.selection = std::move (copies);
}

void changeEvents (Drawing& drawing, const NoteSelection& notes, const EventChange& change)
{
    for (const auto note : notes)
        if (drawing.hasNote (note))
            change (drawing.note (note).event);
}

void toggleEnabled (Drawing& drawing, const NoteSelection& notes)
{
    const auto allOn =
        std::all_of (notes.begin(), notes.end(), [&] (int n) { return drawing.note (n).enabled; });

    for (const auto note : notes)
        drawing.note (note).enabled = ! allOn;
}

} // namespace Zn::GUI::NoteEdits
