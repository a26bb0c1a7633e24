#pragma once

#include "Support/LiteralVoice.h"
#include "Synth/Kernels/Envelope.h"
#include "Synth/Kernels/Pan.h"
#include "Synth/Kernels/Pitch.h"
#include "Synth/Kernels/VoiceKernels.h"

namespace Zn::Test
{
/** A table as the kernels read it, made from plain channels: interleaved, with its guards. */
class KernelTable
{
public:
    explicit KernelTable (const LiteralTable&);

    Audio::Kernels::TableView view() const;

private:
    std::vector<float> samples;
    int numFrames, numChannels;
};

/** The least that turns the kernels into a voice: shows how they are called, and makes them comparable with the
    literal voice. Tables come apart from the settings, in the order of the oscillators and the sub last.
*/
class KernelVoice
{
public:
    using Tables = std::array<Audio::Kernels::TableView, 5>;

    KernelVoice (const Audio::Kernels::VoiceKernels&, const Tables&, double sampleRate, int blockSize);

    void noteStarted (const VoiceSettings&, int note, int velocity14Bit, double bendSemitones = 0.0);
    void noteStopped (const VoiceSettings&);

    /** Everything before the filter. */
    void renderOscillators (const VoiceSettings&, int numFrames);

    /** What to hand to the filter, with those of other voices, where filterIsOn. */
    Audio::Kernels::FilteredVoice filtered (const VoiceSettings&, int numFrames);

    static bool filterIsOn (const VoiceSettings&);

    /** Adds the voice, with its envelope, to a block. */
    void mixInto (const VoiceSettings&, std::span<float> left, std::span<float> right);

    /** All of the above, for a voice alone. */
    void render (const VoiceSettings&, std::span<float> left, std::span<float> right);

private:
    struct UnisonVoice
    {
        Audio::Kernels::TableRead read;
        Audio::Kernels::LinearRamp pan;
        Audio::Kernels::Stereo placeGains; // of the pan while it rests
        float place = -1.0f;               // which pan that was
    };

    struct Oscillator
    {
        std::array<UnisonVoice, 2> voices;
        std::array<Audio::Kernels::UnisonVoicePitch, 2> pitches;
        Audio::Kernels::OscillatorTuning tuning { .numVoices = 0 };
    };

    void tune (Oscillator&, const VoiceSettings::Oscillator&) const;
    void renderOscillator (Oscillator&, const VoiceSettings::Oscillator&, std::span<Audio::Kernels::Stereo>);
    void renderSub (const VoiceSettings&, std::span<Audio::Kernels::Stereo>);
    Audio::Kernels::EnvelopeRates ratesOf (const VoiceSettings&) const;

    const Audio::Kernels::VoiceKernels& kernels;
    double rate;
    float noteFrequency = 440.0f, velocity = 1.0f;
    std::array<Oscillator, 4> oscillators;
    Audio::Kernels::TableRead sub;
    Audio::Kernels::LinearRamp subVolume;
    int subOctave = 0;
    std::vector<Audio::Kernels::Stereo> frames, gains;
    std::vector<float> levels;
    Audio::Kernels::StereoFilterState filterState;
    Audio::Kernels::FilterCoefficients coefficients;
    float lastCutoff = 0.0f, lastResonance = 0.0f;
    Audio::Kernels::EnvelopeState envelope;
};
} // namespace Zn::Test
