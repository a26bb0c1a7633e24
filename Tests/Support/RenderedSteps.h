#pragma once

#include "Sequencer/PatternData.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace Zn::Tests
{
using Notes = std::vector<Sequencer::TimedNote>;

/** One note of a rendered list; times are quarter notes. On the channel that a MIDI text leaves out. */
inline Sequencer::TimedNote note (int row, double start, double length, float velocity = 0.8f)
{
    Sequencer::TimedNote result;
    result.time = { start, length };
    result.event.noteNum = row;
    result.event.velocity = velocity;
    result.event.channel = 0;
    result.enabled = true;
    return result;
}

/** A row as it is drawn: x begins a step, - holds it, . rests. Each sign lasts `width` quarter notes. */
inline Notes steps (std::string_view drawing, int row = 64, double width = 0.5)
{
    Notes result;

    for (std::size_t i = 0; i < drawing.size(); ++i)
    {
        if (drawing[i] == 'x')
            result.push_back (note (row, static_cast<double> (i) * width, width));
        else if (drawing[i] == '-' && ! result.empty())
            result.back().time.length += width;
    }

    return result;
}

/** A pattern that repeats after a length in quarter notes, of one or several rows. */
template <typename... Rows>
Sequencer::RenderedSlot loop (double length, const Rows&... rows)
{
    Sequencer::RenderedSlot slot;
    slot.playLength = slot.events.length = length;

    auto& all = slot.events.notes;
    (all.insert (all.end(), rows.begin(), rows.end()), ...);
    std::stable_sort (all.begin(), all.end(), [] (const auto& a, const auto& b) {
        return a.time.start < b.time.start;
    });

    return slot;
}

/** A pattern that plays once from its anchor. */
template <typename... Rows>
Sequencer::RenderedSlot once (const Rows&... rows)
{
    auto slot = loop (0.0, rows...);
    slot.looping = false;
    return slot;
}
} // namespace Zn::Tests
