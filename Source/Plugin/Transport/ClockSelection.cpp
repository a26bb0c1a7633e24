#include "Plugin/Transport/ClockSelection.h"

namespace Zn::Audio
{
namespace
{
using PositionInfo = juce::AudioPlayHead::PositionInfo;
using Control = Sequencer::PlayHead::Control;

ClockSource
chooseClock (const juce::Optional<PositionInfo>& position, Sequencer::PlayHead& shared, bool keyMode) noexcept
{
    if (! position.hasValue() || ! (keyMode || position->getIsPlaying()))
    {
        shared.isPlaying = true;
        shared.control = Control::nobody;
        return ClockSource::internal;
    }

    const auto isInternal = shared.internalClock.load();
    shared.control = isInternal ? Control::editor : Control::host;
    return isInternal ? ClockSource::internal : ClockSource::host;
}

/** Tells the editor whether there is one. */
void takeTempo (const juce::Optional<PositionInfo>& position, Sequencer::PlayHead& shared) noexcept
{
    const auto tempo = position.hasValue() ? position->getBpm() : juce::Optional<double>();
    const auto isUsable = tempo.hasValue() && InternalPlayHead::isUsableTempo (*tempo);
    shared.hasHostTempo = isUsable;

    if (isUsable)
        shared.bpm = static_cast<float> (*tempo);
}

/** Where the last block has ended, or the editor has moved the clock to: it stores the quarter notes first, so a
    changed sample count means that both have moved.
*/
struct Position
{
    explicit Position (const Sequencer::PlayHead& shared) noexcept
        : samples (shared.positionSamples.load()), ppq (shared.positionPpq.load())
    {}

    /** Tells where the block ends, unless the editor has moved the clock meanwhile, which the next block follows. */
    void replaceBy (const InternalPlayHead& clock, Sequencer::PlayHead& shared) noexcept
    {
        shared.positionPpq.compare_exchange_strong (ppq, clock.getEndPpq());
        shared.positionSamples.compare_exchange_strong (samples, clock.getTimeInSamples());
    }

    std::int64_t samples;
    double ppq;
};

void runInternalClock (InternalPlayHead& clock,
                       const Position& start,
                       bool shouldPlay,
                       int numSamples) noexcept
{
    if (start.samples != clock.getTimeInSamples())
        clock.forceJump();

    clock.setInternalState (shouldPlay, start.ppq);
    clock.update (nullptr, numSamples);
}

void runHostClock (InternalPlayHead& clock,
                   Sequencer::PlayHead& shared,
                   juce::AudioPlayHead& host,
                   int numSamples) noexcept
{
    clock.update (&host, numSamples);

    shared.bpm = static_cast<float> (clock.getTempo());
    shared.isPlaying = clock.isPlaying();
}
} // namespace

ClockSource updateClock (InternalPlayHead& clock,
                         Sequencer::PlayHead& shared,
                         juce::AudioPlayHead* host,
                         bool keyMode,
                         int numSamples) noexcept
{
    Position start (shared);
    const auto position = host != nullptr ? host->getPosition() : juce::nullopt;

    takeTempo (position, shared);
    const auto source = chooseClock (position, shared, keyMode);

    // What a host without a tempo plays at, as our own clock does.
    if (source == ClockSource::internal || ! position->getBpm().hasValue())
        clock.setTempo (static_cast<double> (shared.bpm.load()));

    if (source == ClockSource::host)
        runHostClock (clock, shared, *host, numSamples);
    else
        runInternalClock (clock, start, shared.isPlaying, numSamples);

    start.replaceBy (clock, shared);
    return source;
}
} // namespace Zn::Audio
