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

    takeTempo (position, shared);
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
