#pragma once

#include "Synth/Kernels/LinearRamp.h"
#include "Synth/Kernels/Pitch.h"
#include "Synth/Kernels/VoiceKernels.h"
#include "Synth/MPEVoiceWithADSR.h"
#include "Synth/WavetableSynth/VoiceSettings.h"

namespace Zn::Audio::WavetableSynth
{
/** Plays one note: four wavetable oscillators with a unison pair each, a sine below them, a filter, and the envelope.

    Pitch and volume are those of the run: they move at its beginning and hold. Only the place of a unison voice and
    the sine's gain glide. Thread: audio.
*/
class Voice : public MPEVoiceWithADSR
{
public:
    static constexpr int largestGroup = 4; // filtered side by side
    static constexpr int longestRun = 256; // samples

    /** Where a group of voices is rendered before it is mixed. */
    struct Scratch
    {
        std::array<std::array<Kernels::Stereo, longestRun>, largestGroup> frames;
        std::array<Kernels::Stereo, longestRun> gains;
        std::array<float, longestRun> levels;
    };

    /** What all voices share; both outlive the voice. */
    void use (const VoiceSettings& settingsToFollow, const Kernels::VoiceKernels& kernelsToCall) noexcept;

    /** Silent again, as if new, for a sample rate. Thread: prepare. */
    void prepare (double sampleRate) noexcept;

    /** Adds some voices to a run: all oscillators first, then the filters of all, then the envelopes. */
    static void renderGroup (std::span<Voice* const> voices,
                             Scratch& scratch,
                             std::span<float> left,
                             std::span<float> right) noexcept;

    /** Adds this voice alone. */
    void renderNextBlock (juce::AudioBuffer<float>& audio, int start, int count) override;

private:
    struct UnisonVoice
    {
        Kernels::LinearRamp pan;
        double phase = 0.0; // cycles
    };

    struct Oscillator
    {
        std::array<UnisonVoice, 2> voices;
        Kernels::OscillatorTuning tuning; // what `pitches` were made from
        std::array<Kernels::UnisonVoicePitch, 2> pitches = Kernels::unisonPitches ({});
    };

    void onNoteStart() noexcept override;
    void notePitchbendChanged() override;

    void tune (Oscillator& oscillator, const OscillatorSettings& wanted) noexcept;
    void addOscillators (std::span<Kernels::Stereo> frames, Scratch& scratch) noexcept;
    void addUnisonVoice (UnisonVoice& voice,
                         const Kernels::UnisonVoicePitch& pitch,
                         const OscillatorSettings& wanted,
                         std::span<Kernels::Stereo> frames,
                         Scratch& scratch) noexcept;
    void addSub (std::span<Kernels::Stereo> frames, Scratch& scratch) noexcept;
    void updateFilter() noexcept;
    void finish (std::span<const Kernels::Stereo> frames,
                 Scratch& scratch,
                 std::span<float> left,
                 std::span<float> right) noexcept;

    const VoiceSettings* settings = nullptr;
    const Kernels::VoiceKernels* kernels = nullptr;

    float noteFrequencyHz = 440.0f;
    float velocityGain = 1.0f;
    std::array<Oscillator, numOscillators> oscillators;

    Kernels::LinearRamp subGain;
    double subPhase = 0.0; // cycles

    Kernels::StereoFilterState filterState;
    Kernels::FilterCoefficients filterCoefficients;
    float lastCutoffHz = -1.0f, lastResonance = -1.0f; // of the coefficients
    double lastSampleRate = -1.0;
};
} // namespace Zn::Audio::WavetableSynth
