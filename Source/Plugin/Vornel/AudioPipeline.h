#pragma once

#include "Midi/NoteGate.h"
#include "Plugin/Vornel/UnisonPush.h"
#include "Synth/AnalogDelay/DelayFilter.h"
#include "Synth/WavetableSynth/ReadVoiceSettings.h"
#include "Synth/WavetableSynth/Synth.h"

namespace Zn::Audio::Plugins::Vornel
{
class State;

/** The sound of a block: the synth plays what the host receives as MIDI, an echo is mixed in, and the master gain
    scales it. Thread: audio.
*/
class AudioPipeline
{
public:
    explicit AudioPipeline (State& stateToUse);

    /** Silences everything and sizes it for a rate in hertz and a block in samples. Thread: prepare. */
    void prepare (double sampleRate, int maxBlockSize);

    /** Fills a cleared stereo block. `midi` is the block's output; the tempo is in quarter notes a minute. */
    void process (juce::AudioBuffer<float>& audio, const juce::MidiBuffer& midi, double tempo) noexcept;

    /** The same while the host bypasses us: what sounded is cut off, and nothing of it comes back afterwards. `midi` is
        what the host sends.
    */
    void processBypassed (const juce::MidiBuffer& midi) noexcept;

    /** Forgets all notes and echoes at once. */
    void silence() noexcept;

private:
    bool takeNotes (const juce::MidiBuffer& midi, int numSamples) noexcept;
    void addEcho (juce::AudioBuffer<float>& audio, double tempo) noexcept;
    void resetIfBroken (juce::AudioBuffer<float>& audio) noexcept;
    void scaleByMaster (juce::AudioBuffer<float>& audio) noexcept;
    void measure (const juce::AudioBuffer<float>& audio) noexcept;
    void setGain (juce::SmoothedValue<float>& gain, float target) noexcept;

    State& state;
    const WavetableSynth::Tables tables;
    UnisonPush unisonPush;

    WavetableSynth::Synth synth;
    Midi::NoteGate synthGate; // ends the synth's notes when it is switched off
    juce::MidiBuffer synthMidi;
    bool isSilent = false; // the synth is off, and all of its sound has been forgotten

    AnalogDelay::Delay delay;
    juce::AudioBuffer<float> dry;
    juce::SmoothedValue<float> dryGain, wetGain, masterGain;
    bool gainsStandAtTargets = false; // from the first block after prepare on they glide
    double sampleRate = 44100.0;      // hertz
};
} // namespace Zn::Audio::Plugins::Vornel
