#pragma once

#include <array>

namespace Zn::Audio::Kernels
{
/** The frequency of a note in hertz: 69 is 440 Hz. The bend is in semitones. */
float noteFrequencyHz (int note, double bendSemitones) noexcept;

/** The gain of a struck key: from a tenth for the softest to 1 for the hardest of the 16384 velocities. */
float velocityGain (int velocity14Bit) noexcept;

/** What the pitch of an oscillator is made from. Compare it to see whether the pitch must be made again. */
struct OscillatorTuning
{
    float noteFrequencyHz = 440.0f;
    int octave = 0, semitones = 0;
    int numVoices = 1; // 1 or 2 in unison
    float spread = 0.0f;

    constexpr bool operator== (const OscillatorTuning&) const = default;
};

struct UnisonVoicePitch
{
    double frequencyHz = 0.0;
    float pan = 0.5f; // 0 left, 1 right
    float gain = 1.0f;
};

/** Both unison voices of an oscillator. A pair stands to either side of the pitch and of the middle, at half gain;
    alone, both are at the pitch and only the first is to be heard.
*/
std::array<UnisonVoicePitch, 2> unisonPitches (const OscillatorTuning&) noexcept;

double subFrequencyHz (float noteFrequencyHz, int octave) noexcept;
} // namespace Zn::Audio::Kernels
