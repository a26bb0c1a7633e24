#include "Sequencer/Modifiers/BarChange.h"

#include "Sequencer/Modifiers/Limits.h"
#include "Sequencer/Modifiers/TimeOrder.h"

#include <algorithm>
#include <iterator>

namespace Zn::Sequencer::Modifiers
{
namespace
{
using Sequences = TimedSteps::Sequences;

struct IndexRange
{
    std::size_t first, end; // end: just past the last
};

IndexRange startingIn (Ranges::Span time, const Sequences& lane)
{
    IndexRange range { lane.size(), lane.size() };
    auto start = 0.0;

    for (std::size_t i = 0; i < lane.size(); ++i)
    {
        if (! isBefore (start, time.start) && isBefore (start, time.end()))
            range = { std::min (range.first, i), i + 1 };

        start += lane[i]->duration.value();
    }

    return range;
}

/** A bar without a length has no beats. */
std::size_t beatsOf (Bar bar) noexcept
{
    return bar.length() > 0.0 ? static_cast<std::size_t> (std::min (bar.num, maxSequences)) : 0;
}

auto at (Sequences& lane, std::size_t index)
{
    return lane.begin() + static_cast<std::ptrdiff_t> (std::min (index, lane.size()));
}

void insertBlanks (Sequences& lane, std::size_t index, std::size_t count)
{
    const auto room = maxSequences - std::min<std::size_t> (lane.size(), maxSequences);
    Sequences blanks (std::min (count, room));

    for (auto& blank : blanks)
        blank = std::make_unique<StepPulseSequencer>();

    lane.insert (at (lane, index),
                 std::make_move_iterator (blanks.begin()),
                 std::make_move_iterator (blanks.end()));
}
} // namespace

void fitToBar (Sequences& lane, Ranges::Span oldTime, Bar oldBar, Bar newBar)
{
    const auto [first, end] = startingIn (oldTime, lane);
    const auto oldBeats = beatsOf (oldBar);
    const auto newBeats = beatsOf (newBar);

    if (newBeats > oldBeats)
        insertBlanks (lane, end, newBeats - oldBeats);
    else if (first + oldBeats < lane.size())
        lane.erase (at (lane, first + newBeats), at (lane, first + oldBeats));

    if (lane.size() < first + newBeats)
        insertBlanks (lane, lane.size(), first + newBeats - lane.size());

    std::for_each (at (lane, first), at (lane, first + newBeats), [newBar] (auto& beat) {
        beat->duration.setQuarters (newBar.length() / newBar.num);
    });
}
} // namespace Zn::Sequencer::Modifiers
