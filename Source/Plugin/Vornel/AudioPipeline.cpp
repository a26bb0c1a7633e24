#include "Plugin/Vornel/AudioPipeline.h"

#include "Plugin/Vornel/State.h"
#include "Synth/FiniteSound.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr double gainRampSeconds = 0.02;
constexpr int stereo = 2;
} // namespace

AudioPipeline::AudioPipeline (State& stateToUse) : state (stateToUse), unisonPush (stateToUse.params.sound) {}

void AudioPipeline::prepare (double newSampleRate, int maxBlockSize)
{
    sampleRate = newSampleRate;
    synth.prepare (sampleRate);
    synthGate.prepare();
    synthMidi.ensureSize (Midi::reservedBufferBytes);

    dry.setSize (stereo, maxBlockSize, false, false, true);
    delay.prepare (sampleRate);
    silence();

    for (auto* gain : { &dryGain, &wetGain, &masterGain })
        gain->reset (sampleRate, gainRampSeconds);

    gainsStandAtTargets = false;
}

void AudioPipeline::process (juce::AudioBuffer<float>& audio,
                             const juce::MidiBuffer& midi,
                             double tempo) noexcept
{
    if (! takeNotes (midi, audio.getNumSamples()))
    {
        state.meter.store (0.0f);
        return;
    }

    const auto& params = state.params.sound;
    unisonPush.push();
    synth.setSettings (WavetableSynth::readVoiceSettings (params.synth, tables, sampleRate));
    synth.render (audio, synthMidi);

    addEcho (audio, tempo);
    resetIfBroken (audio);
    scaleByMaster (audio);
    gainsStandAtTargets = true;

    measure (audio);
}

void AudioPipeline::processBypassed (const juce::MidiBuffer& midi) noexcept
{
    silence();
    synth.followWheel (midi);
}

void AudioPipeline::silence() noexcept
{
    synth.stopAll();
    delay.reset();
    state.meter.store (0.0f);
}

/** Collects what the synth plays; false when it is off and has nothing left to sound. */
bool AudioPipeline::takeNotes (const juce::MidiBuffer& midi, int numSamples) noexcept
{
    const auto isOn = state.params.sound.synthEnable.get();
    Midi::EventWriter notes (synthMidi);
    notes.clear();

    if (isOn)
    {
        for (const auto event : midi)
            if (event.samplePosition >= 0 && event.samplePosition < numSamples)
                notes.add (event);
    }
    else
        synth.followWheel (midi);

    synthGate.process (synthMidi, isOn, true);

    if (isOn || synth.isAnyVoiceActive())
    {
        isSilent = false;
        return true;
    }

    // The echo stops with the last voice, and must not come back when the synth is switched on again.
    if (! std::exchange (isSilent, true))
        delay.reset();

    return false;
}

void AudioPipeline::addEcho (juce::AudioBuffer<float>& audio, double tempo) noexcept
{
    const auto numSamples = audio.getNumSamples();
    const auto& params = state.params.sound.synth.delay;

    dry.setSize (stereo, numSamples, false, false, true); // allocates for a block longer than announced

    for (auto channel = 0; channel < stereo; ++channel)
        dry.copyFrom (channel, 0, audio, channel, 0, numSamples);

    AnalogDelay::follow (delay, params, tempo);
    delay.process (audio);

    const auto angle = params.mix.get() * juce::MathConstants<float>::halfPi;
    setGain (dryGain, std::cos (angle));
    setGain (wetGain, std::sin (angle));

    dryGain.applyGain (dry, numSamples);
    wetGain.applyGain (audio, numSamples);

    for (auto channel = 0; channel < stereo; ++channel)
        audio.addFrom (channel, 0, dry, channel, 0, numSamples);
}

/** One value that is no number would stay in the echo's line for ever. */
void AudioPipeline::resetIfBroken (juce::AudioBuffer<float>& audio) noexcept
{
    if (isFinite (audio))
        return;

    silence();
    audio.clear();
}

void AudioPipeline::scaleByMaster (juce::AudioBuffer<float>& audio) noexcept
{
    setGain (masterGain, state.params.sound.master.get());
    masterGain.applyGain (audio, audio.getNumSamples());
}

/** The meter is that of the left channel. */
void AudioPipeline::measure (const juce::AudioBuffer<float>& audio) noexcept
{
    if (state.numMeterListeners.load() > 0)
        state.meter.store (audio.hasBeenCleared() ? 0.0f : audio.getRMSLevel (0, 0, audio.getNumSamples()));
}

void AudioPipeline::setGain (juce::SmoothedValue<float>& gain, float target) noexcept
{
    if (gainsStandAtTargets)
        gain.setTargetValue (target);
    else
        gain.setCurrentAndTargetValue (target);
}
} // namespace Zn::Audio::Plugins::Vornel
