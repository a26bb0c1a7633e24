#include "Sequencer/SlotPlayer.h"

#include "Sequencer/LoopPositions.h"

#include <cmath>
#include <utility>

namespace Zn::Sequencer
{
namespace
{
constexpr double shortestLoop = 0.001; // quarter notes

bool isHeard (const ClockSlice& clock, const RenderedSlot& slot) noexcept
{
    const auto canRepeat = std::isfinite (slot.playLength) && slot.playLength >= shortestLoop;

    return clock.isPlaying && slot.playing && (canRepeat || ! slot.looping);
}
} // namespace

void SlotPlayer::prepare (int blockSize)
{
    positions.reserve (static_cast<std::size_t> (std::max (blockSize, 0)));
}

void SlotPlayer::anchorAt (double ppq) noexcept
{
    pendingAnchor = ppq;
    mode = Mode::anchorAgain;
}

void SlotPlayer::run (const ClockSlice& clock,
                      const RenderedSlot& slot,
                      juce::MidiBuffer& rows,
                      int offset) noexcept
{
    if (clock.ppq.empty())
        return;

    firedMarks.clear();

    player.setSamplePeriod (clock.ppqPerSample);
    const auto arrival = arrive (clock);
    const PatternOutput output { rows, firedMarks, offset };
    const auto& played = isHeard (clock, slot) ? slot : fallback;

    positions.resize (clock.ppq.size());
    fillPositions (positions, clock.ppq, anchor);

    if (played.looping)
        runLoop (played, arrival, output);
    else
        player.run (played.events, positions, arrival, output);
}

Arrival SlotPlayer::arrive (const ClockSlice& clock) noexcept
{
    if (clock.jumped)
        resetAnchor();

    if (std::exchange (mode, Mode::normal) == Mode::anchorAgain)
    {
        anchor = pendingAnchor;
        return Arrival::jumped;
    }

    const auto begins = clock.stateChanged && clock.isPlaying;

    return clock.jumped || begins ? Arrival::jumped : Arrival::continues;
}

void SlotPlayer::runLoop (const RenderedSlot& slot, Arrival arrival, const PatternOutput& output) noexcept
{
    wrapToLoop (positions, slot.playLength);

    // Another length puts the pattern elsewhere in time.
    if (std::exchange (playedLength, slot.playLength) != slot.playLength)
        arrival = Arrival::jumped;

    // Where the loop is as long as the block, each run begins where the last one began: only the way back from
    // the last run's end tells that the pattern has wrapped. A clock that falls back by less only jitters.
    if (arrival == Arrival::continues && player.getEndPosition() - positions.front() > 0.5 * slot.playLength)
        arrival = Arrival::wrapped;

    for (auto start = positions.begin(); start != positions.end();)
    {
        const auto falls =
            std::adjacent_find (start, positions.end(), [] (double a, double b) { return b < a; });
        const auto end = falls == positions.end() ? falls : falls + 1;
        const auto sample = static_cast<int> (start - positions.begin());

        player.run (slot.events, { start, end }, arrival, output.from (sample));
        arrival = Arrival::wrapped;
        start = end;
    }
}
} // namespace Zn::Sequencer
