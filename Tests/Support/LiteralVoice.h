#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <array>
#include <vector>

namespace Zn::Tests
{
/** A wavetable as plain channels, without guards or interleaving. */
using LiteralTable = std::vector<std::vector<float>>;

/** What one voice of the synth is set to. Gains are linear, times in seconds. */
struct VoiceSettings
{
    struct Oscillator
    {
        bool enabled = true;
        const LiteralTable* table = nullptr;
        int octave = 0, tune = 0; // octaves, semitones
        float volume = 0.178f;
        int unison = 1;
        float spread = 0.5f;
    };

    std::array<Oscillator, 4> oscillators;

    const LiteralTable* subTable = nullptr;
    float subVolume = 1.0f;
    int subOctave = -2;

    bool filterEnabled = true;
    float cutoff = 8000.0f, resonance = 1.0f, keyTracking = 1.0f;

    float attack = 0.005f, decay = 1.0f, sustain = 1.0f, release = 0.01f;
};

/** One voice of the synth in its plainest form, slow and obvious: what all faster forms have to sound like.

    A sample at a time, each channel by itself, the phase by fmod. Nothing here is shared with the kernels.
*/
class LiteralVoice
{
public:
    LiteralVoice (double sampleRate, int blockSize);

    void noteStarted (const VoiceSettings&, int note, int velocity14Bit, double bendSemitones = 0.0);
    void noteStopped (const VoiceSettings&);
    void bend (int note, double bendSemitones);

    /** Fills a block of two channels with the voice and its envelope. */
    void render (const VoiceSettings&, juce::AudioBuffer<float>& block);

    bool isActive() const { return state != idle; }

    /** One value of a channel: Catmull-Rom, its ends held. */
    static float read (const std::vector<float>& channel, double phase);

    /** The two pitches of an oscillator in hertz, their places and gains. */
    struct Pitch
    {
        std::array<double, 2> frequencies;
        std::array<float, 2> pans, gains;
    };

    static Pitch pitch (const VoiceSettings::Oscillator&, float noteFrequency);

private:
    enum State
    {
        idle,
        attack,
        decay,
        sustain,
        release
    };

    struct UnisonVoice
    {
        juce::SmoothedValue<float> pan;
        double phase = 0.0;
    };

    struct Oscillator
    {
        juce::SmoothedValue<float> volume;
        std::array<UnisonVoice, 2> voices;
    };

    struct FilterStage
    {
        float s1 = 0.0f, s2 = 0.0f;
    };

    void renderVoice (const VoiceSettings&, juce::AudioBuffer<float>& block);
    void renderOscillator (Oscillator&, const VoiceSettings::Oscillator&, juce::AudioBuffer<float>& block);
    void renderSub (const VoiceSettings&, juce::AudioBuffer<float>& block);
    void renderFilter (const VoiceSettings&, juce::AudioBuffer<float>& block);
    void fillFrom (const LiteralTable&, double frequency, double& phase, juce::AudioBuffer<float>& buffer);
    void applyEnvelope (const VoiceSettings&, juce::AudioBuffer<float>& block);
    void advanceEnvelope (const VoiceSettings&);

    double rate;
    float noteFrequency = 440.0f, velocityGain = 1.0f;
    juce::AudioBuffer<float> scratch, oscillatorBuffer;
    std::vector<double> phases;
    std::array<Oscillator, 4> oscillators;
    juce::SmoothedValue<float> subVolume;
    double subPhase = 0.0;
    std::array<std::array<FilterStage, 2>, 2> filter; // channel, stage

    State state = idle;
    float level = 0.0f, releaseStep = 0.0f;
    bool noteIsDown = false;
};
} // namespace Zn::Tests
