#include "GUI/Pattern/Drawing.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
constexpr auto asGoodAsThere = 1.0e-6; // columns
}

Drawing Drawing::of (const Sequencer::PatternSlot& slot)
{
    return { .notes = slot.pattern.steps,
             .selection = {},
             .grid = slot.pattern.grid,
             .multiply = slot.multiply,
             .time = slot.time.getBars(),
             .noteLength = slot.pattern.gate };
}

void Drawing::writeTo (Sequencer::PatternSlot& slot) const
{
    slot.pattern.steps = notes;
    slot.pattern.grid = grid;
    slot.pattern.gate = noteLength;
    slot.multiply = multiply;

    if (slot.time.getBars() != time)
        slot.time.setBars (time);
}

bool Drawing::playsAs (const Drawing& other) const noexcept
{
    return grid == other.grid && multiply == other.multiply && time == other.time
           && noteLength == other.noteLength && notes == other.notes;
}

double NoteGrid::columnStart (double time) const noexcept
{
    const auto column = std::floor (time * columns + asGoodAsThere);
    return std::clamp (column, 0.0, columns - 1.0) / columns;
}

double NoteGrid::tidied (double time) const noexcept
{
    const auto line = std::round (time * columns);
    return std::abs (time * columns - line) < asGoodAsThere ? line / columns : time;
}

Ranges::Span NoteGrid::limited (Ranges::Span span) const noexcept
{
    const auto start = std::clamp (span.start, 0.0, lastStart());
    return { start, std::clamp (span.length, shortest(), std::max (1.0 - start, shortest())) };
}
} // namespace Zn::GUI
