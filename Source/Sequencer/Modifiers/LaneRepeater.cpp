#include "Sequencer/Modifiers/LaneRepeater.h"

#include "Sequencer/Modifiers/Limits.h"
#include "Sequencer/Modifiers/TimeOrder.h"

namespace Zn::Sequencer::Modifiers
{
namespace
{
template <typename Element>
void appendInside (std::vector<Element>& target,
                   const std::vector<Element>& pass,
                   double passStart,
                   double loopLength)
{
    for (const auto& element : pass)
    {
        const auto start = passStart + element.time.start;

        if (start >= 0.0 && isBefore (start, loopLength))
            target.emplace_back (element).time.start = start;
    }
}

bool isFull (const RenderedEvents& events) noexcept
{
    return events.notes.size() + events.sequences.size() + events.marks.size() >= maxRepeated;
}
} // namespace

void repeatLane (const TimedSteps& lane, double loopLength, RenderedEvents& target)
{
    constexpr auto shortestPass = 0.001; // quarter notes; less would never fill the loop

    RenderedEvents pass;
    lane.render (pass);

    for (auto repeat = 0; repeat < maxRepeats; ++repeat)
    {
        const auto start = repeat * pass.length;

        if (! isBefore (start, loopLength))
            return;

        appendInside (target.notes, pass.notes, start, loopLength);
        appendInside (target.sequences, pass.sequences, start, loopLength);
        appendInside (target.marks, pass.marks, start, loopLength);

        if (pass.length < shortestPass || isFull (target))
            return;
    }
}
} // namespace Zn::Sequencer::Modifiers
