#include "Synth/Kernels/Pitch.h"

#include <gtest/gtest.h>

namespace Zn::Audio::Kernels
{
namespace
{
TEST (Pitch, OfANoteIsTempered)
{
    EXPECT_NEAR (noteFrequencyHz (36, 0.0), 65.406391f, 1.0e-5f);
    EXPECT_NEAR (noteFrequencyHz (60, 0.0), 261.625565f, 4.0e-5f);
    EXPECT_EQ (noteFrequencyHz (69, 0.0), 440.0f);
    EXPECT_NEAR (noteFrequencyHz (60, 2.0), 293.664768f, 4.0e-5f);
}

TEST (Pitch, OfAUnisonPairLiesToBothSides)
{
    const std::tuple<float, double, double, float, float> rows[] {
        { 0.0f, 439.745935, 440.254243, 0.5f, 0.5f },
        { 0.5f, 438.604387, 441.400085, 0.25f, 0.75f },
        { 1.0f, 437.465802, 442.548910, 0.0f, 1.0f }
    };

    for (const auto& [spread, lower, upper, leftPan, rightPan] : rows)
    {
        const auto [a, b] = unisonPitches ({ .noteFrequencyHz = 440.0f, .numVoices = 2, .spread = spread });
        EXPECT_NEAR (a.frequencyHz, lower, 1.0e-5) << spread;
        EXPECT_NEAR (b.frequencyHz, upper, 1.0e-5) << spread;
        EXPECT_EQ (a.pan, leftPan) << spread;
        EXPECT_EQ (b.pan, rightPan) << spread;
        EXPECT_EQ (a.gain, 0.5f);
        EXPECT_EQ (b.gain, 0.5f);
    }
}

TEST (Pitch, OfALoneVoiceIsMovedByItsTuning)
{
    const auto alone =
        unisonPitches ({ .noteFrequencyHz = 261.6255653f, .octave = 1, .semitones = 7 }).front();
    EXPECT_NEAR (alone.frequencyHz, 783.990973, 1.0e-4);
    EXPECT_EQ (alone.pan, 0.5f);
    EXPECT_EQ (alone.gain, 1.0f);
    EXPECT_NEAR (subFrequencyHz (440.0f, -2), 110.0, 1.0e-9);
}

TEST (Pitch, OfASofterKeyComesWithLessGain)
{
    EXPECT_FLOAT_EQ (velocityGain (0), 0.1f);
    EXPECT_NEAR (velocityGain (8192), 0.550027f, 1.0e-6f);
    EXPECT_NEAR (velocityGain (12872), 0.807123f, 1.0e-6f);
    EXPECT_NEAR (velocityGain (16383), 1.0f, 1.0e-6f);
}
} // namespace
} // namespace Zn::Audio::Kernels
