#include "Sequencer/SlotPlayer.h"

#include "Sequencer/LoopPositions.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zn::Sequencer
{
namespace
{
constexpr double shortestLoop = 0.001; // quarter notes

/** Whether the song goes back between two samples, as in a loop of the host's; by less it only jitters. */
bool fallsBack (double before, double after) noexcept
{
    constexpr auto jitter = 0.05; // quarter notes
    return after < before - jitter;
}

/** How far it is to where the song goes back. */
std::size_t sizeUpToFall (std::span<const double> ppq, double ppqPerSample) noexcept
{
    const auto evenly = ppqPerSample * static_cast<double> (ppq.size() - 1);

    if (! fallsBack (evenly, ppq.back() - ppq.front()))
        return ppq.size();

    const auto fall = std::adjacent_find (ppq.begin(), ppq.end(), fallsBack);
    return static_cast<std::size_t> (fall - ppq.begin()) + (fall != ppq.end() ? 1 : 0);
}

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
    auto arrival = arrive (clock);
    const PatternOutput output { rows, firedMarks, offset };
    const auto& played = isHeard (clock, slot) ? slot : fallback;

    for (auto rest = clock.ppq; ! rest.empty();)
    {
        const auto pass = rest.first (sizeUpToFall (rest, clock.ppqPerSample));
        runPass (played, pass, arrival, output.from (clock.size() - static_cast<int> (rest.size())));
        rest = rest.subspan (pass.size());

        if (! rest.empty())
        {
            resetAnchor();
            arrival = Arrival::wrapped;
        }
    }

    lastPpq = clock.ppq.back();
}

Arrival SlotPlayer::arrive (const ClockSlice& clock) noexcept
{
    const auto songWrapped = fallsBack (lastPpq, clock.ppq.front());

    if (clock.jumped || songWrapped)
        resetAnchor();

    if (std::exchange (mode, Mode::normal) == Mode::anchorAgain)
    {
        anchor = pendingAnchor;
        return Arrival::jumped;
    }

    const auto begins = clock.stateChanged && clock.isPlaying;

    if (clock.jumped || begins)
        return Arrival::jumped;

    return songWrapped ? Arrival::wrapped : Arrival::continues;
}

void SlotPlayer::runPass (const RenderedSlot& slot,
                          std::span<const double> ppq,
                          Arrival arrival,
                          const PatternOutput& output) noexcept
{
    positions.resize (ppq.size());
    fillPositions (positions, ppq, anchor);

    if (slot.looping)
        runLoop (slot, arrival, output);
    else
        player.run (slot.events, positions, arrival, output);
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
