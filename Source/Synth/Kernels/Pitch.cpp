#include "Synth/Kernels/Pitch.h"

#include <cmath>

namespace Zn::Audio::Kernels
{
namespace
{
constexpr double concertPitchHz = 440.0;
constexpr double concertPitchNote = 69.0;
constexpr double semitonesPerOctave = 12.0;
constexpr double octavesToConcertPitch = 5.75; // from note 0 to note 69

// The precision of the single floats that instruments of this kind tune with: a few millionths of a semitone.
constexpr double inverseConcertPitch = 0.0022727272;
constexpr double semitonesPerNaturalLogarithm = 17.31234;
constexpr double octavesPerSemitone = 0.083333336;
constexpr double justBelowOne = 0.99999994;

double ratioOfNote (double note) noexcept
{
    return std::exp2 (note / semitonesPerOctave - octavesToConcertPitch);
}
} // namespace

float noteFrequencyHz (int note, double bendSemitones) noexcept
{
    return static_cast<float> (concertPitchHz * ratioOfNote (note + bendSemitones));
}

float velocityGain (int velocity14Bit) noexcept
{
    return static_cast<float> (velocity14Bit) * 5.4934993e-5f + 0.1f;
}

std::array<UnisonVoicePitch, 2> unisonPitches (const OscillatorTuning& tuning) noexcept
{
    const auto note = std::log (static_cast<double> (tuning.noteFrequencyHz) * inverseConcertPitch)
                          * semitonesPerNaturalLogarithm
                      + concertPitchNote + tuning.semitones + semitonesPerOctave * tuning.octave;
    const auto ratio = std::exp2 (note * octavesPerSemitone - octavesToConcertPitch);

    if (tuning.numVoices <= 1)
    {
        const UnisonVoicePitch alone { concertPitchHz * ratio, 0.5f, 1.0f };
        return { alone, alone };
    }

    // One semitone above the pitch: each voice then goes down by about one, less or more than its partner.
    const auto above =
        std::log (ratio * justBelowOne) * semitonesPerNaturalLogarithm + concertPitchNote + 1.0;
    const auto detune = 0.01 + 0.09 * static_cast<double> (tuning.spread);
    const auto place = tuning.spread * 0.5f;

    return { UnisonVoicePitch { concertPitchHz * ratioOfNote (above - 1.0 - detune), 0.5f - place, 0.5f },
             UnisonVoicePitch { concertPitchHz * ratioOfNote (above - 1.0 + detune), 0.5f + place, 0.5f } };
}

double subFrequencyHz (float noteFrequencyHz, int octave) noexcept
{
    const auto semitones =
        std::log2 (static_cast<double> (noteFrequencyHz) / concertPitchHz) * semitonesPerOctave;
    return concertPitchHz * ratioOfNote (semitones + concertPitchNote + semitonesPerOctave * octave);
}
} // namespace Zn::Audio::Kernels
