#include "Plugin/Transport/ClockSelection.h"

namespace Zn::Audio
{
namespace
{
using PositionInfo = juce::AudioPlayHead::PositionInfo;

ClockSource
chooseClock (const juce::Optional<PositionInfo>& position, Sequencer::PlayHead& shared, bool keyMode) noexcept
{
    if (! position.hasValue() || ! (keyMode || position->getIsPlaying()))
    {
        shared.isPlaying = true;
        return ClockSource::internal;
    }

    return shared.internalClock ? ClockSource::internal : ClockSource::host;
}

void runInternalClock (InternalPlayHead& clock, const Sequencer::PlayHead& shared, int numSamples) noexcept
{
    // The editor stores the quarter notes first: a changed sample count means that both have moved.
    if (shared.positionSamples != clock.getTimeInSamples())
        clock.forceJump();

    clock.setInternalState (shared.isPlaying, shared.positionPpq);
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
    const auto position = host != nullptr ? host->getPosition() : juce::nullopt;

    if (position.hasValue())
        if (const auto tempo = position->getBpm();
            tempo.hasValue() && InternalPlayHead::isUsableTempo (*tempo))
            shared.bpm = static_cast<float> (*tempo);

    const auto source = chooseClock (position, shared, keyMode);

    // What a host without a tempo plays at, as our own clock does.
    if (source == ClockSource::internal || ! position->getBpm().hasValue())
        clock.setTempo (static_cast<double> (shared.bpm.load()));

    if (source == ClockSource::host)
        runHostClock (clock, shared, *host, numSamples);
    else
        runInternalClock (clock, shared, numSamples);

    shared.positionPpq = clock.getEndPpq();
    shared.positionSamples = clock.getTimeInSamples();
    return source;
}
} // namespace Zn::Audio
