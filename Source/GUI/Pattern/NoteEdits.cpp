#include "GUI/Pattern/NoteEdits.h"

#include "Sequencer/Modifiers/Limits.h"

#include <algorithm>
#include <limits>
#include <numeric>

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

/** The stretch of a way on which one of its coordinates lies between two bounds. */
juce::Range<double> stretchWithin (double from, double to, double low, double high)
{
    if (from == to)
        return from >= low && from < high ? juce::Range { 0.0, 1.0 } : juce::Range { 2.0, 2.0 };

    const auto atLow = (low - from) / (to - from);
    const auto atHigh = (high - from) / (to - from);
    return juce::Range<double>::between (atLow, atHigh);
}

bool passes (const Sequencer::TimedNote& note, RollPoint from, RollPoint to)
{
    const auto row = static_cast<double> (note.event.noteNum);
    const auto inTime = stretchWithin (from.time, to.time, note.time.start, note.time.end());
    const auto inRow = stretchWithin (from.row, to.row, row, row + 1.0);
    const auto begin = std::max ({ inTime.getStart(), inRow.getStart(), 0.0 });
    const auto end = std::min ({ inTime.getEnd(), inRow.getEnd(), 1.0 });
    return begin <= end;
}

template <typename Condition>
NoteSelection notesThat (const Drawing& drawing, Condition&& condition)
{
    NoteSelection found;

    for (auto i = 0; i < drawing.numNotes(); ++i)
        if (condition (drawing.note (i)))
            found.set (i, true);

    return found;
}
} // namespace

Sequencer::TimedNote newNote (const Drawing& drawing, const NoteGrid& grid, RollPoint at)
{
    Sequencer::TimedNote note;
    note.time = grid.limited ({ .start = grid.snaps ? grid.columnStart (at.time) : at.time,
                                .length = drawing.noteLength * grid.column() });
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
    const auto snapped = std::max (grid.nearestLine (length + byTime), grid.column());
    const auto delta = grid.snaps ? snapped - length : byTime;

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

NoteSelection selectionOr (const Drawing& drawing, int note)
{
    if (drawing.selection.contains (note))
        return drawing.selection;

    return drawing.hasNote (note) ? NoteSelection { note } : NoteSelection();
}

NoteSelection notesInRow (const Drawing& drawing, int row)
{
    return notesThat (drawing, [row] (const auto& note) { return note.event.noteNum == row; });
}

NoteSelection notesIn (const Drawing& drawing, const RollArea& area)
{
    const auto [left, right] = std::minmax (area.from.time, area.to.time);
    const auto [low, high] = std::minmax (area.from.row, area.to.row);

    return notesThat (drawing, [=, left = left, right = right, low = low, high = high] (const auto& note) {
        const auto row = static_cast<double> (note.event.noteNum);
        return note.time.start <= right && note.time.end() > left && row <= high && row + 1.0 > low;
    });
}

NoteSelection notesBetween (const Drawing& drawing, RollPoint from, RollPoint to)
{
    return notesThat (drawing, [=] (const auto& note) { return passes (note, from, to); });
}

int nextNote (const Drawing& drawing, int note, bool backwards)
{
    std::vector<int> order (drawing.notes.size());
    std::iota (order.begin(), order.end(), 0);

    std::stable_sort (order.begin(), order.end(), [&] (int a, int b) {
        const auto &first = drawing.note (a), &second = drawing.note (b);
        return std::pair (first.time.start, first.event.noteNum)
               < std::pair (second.time.start, second.event.noteNum);
    });

    if (order.empty())
        return -1;

    if (backwards)
        std::reverse (order.begin(), order.end());

    const auto place = std::find (order.begin(), order.end(), note);
    return place == order.end() || place + 1 == order.end() ? order.front() : *(place + 1);
}
} // namespace Zn::GUI::NoteEdits
