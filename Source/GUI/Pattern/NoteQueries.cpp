#include "GUI/Pattern/NoteQueries.h"

#include <algorithm>
#include <numeric>

namespace Zn::GUI::NoteQueries
{
namespace
{
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

juce::Range<int> rowsOf (std::span<const Sequencer::TimedNote> notes)
{
    juce::Range<int> rows;

    for (const auto& note : notes)
    {
        const auto row = juce::Range<int>::withStartAndLength (note.event.noteNum, 1);
        rows = rows.isEmpty() ? row : rows.getUnionWith (row);
    }

    return rows;
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
} // namespace Zn::GUI::NoteQueries
