#include "Support/KernelTable.h"
#include "Synth/Kernels/VoiceKernels.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Zn::Audio::Kernels
{
namespace
{
using Tests::allSets;
using Tests::KernelTable;
using Tests::LiteralTable;
using Tests::LiteralVoice;

LiteralTable noise (int numChannels, int numFrames, juce::Random& random)
{
    LiteralTable table (static_cast<size_t> (numChannels),
                        std::vector<float> (static_cast<size_t> (numFrames)));

    for (auto& channel : table)
    {
        for (auto& sample : channel)
            sample = random.nextFloat() * 2.0f - 1.0f;

        channel.back() = channel.front();
    }

    return table;
}

TEST (TableRead, PassesThroughTheSamplesInACurve)
{
    const KernelTable table ({ { 0.0f, 1.0f, 0.0f, -1.0f, 0.5f } });

    const std::pair<double, float> rows[] { { 0.0, 0.0f },     { 0.125, 0.5625f }, { 0.25, 1.0f },
                                            { 0.375, 0.625f }, { 0.5, 0.0f },      { 0.625, -0.65625f },
                                            { 0.8, -0.836f },  { 0.95, 0.256f },   { 1.0, 0.5f },
                                            { 1.4, 0.5f },     { 1.6, 0.0f } };

    for (const auto& [phase, expected] : rows)
    {
        EXPECT_NEAR (readTable (table.view(), 0, phase), expected, 1.0e-5f) << "phase " << phase;
        EXPECT_NEAR (readTable (table.view(), 1, phase), expected, 1.0e-5f)
            << "right of a mono table " << phase;
    }

    EXPECT_EQ (readTable (table.view(), 0, std::nan ("")), 0.0f);
    EXPECT_EQ (readTable (table.view(), 0, -0.5), 0.0f);
}

/** Tables, lengths, phases and pitches at random, against the plain reading of each frame. */
TEST (TableRead, OfEverySetAgreesWithThePlainOne)
{
    for (auto set : allSets)
        for (auto round = 0; round < 400; ++round)
        {
            juce::Random random (round);
            const auto channels = noise (1 + random.nextInt (2), 2 + random.nextInt (300), random);
            const KernelTable table (channels);
            const auto numFrames = static_cast<size_t> (random.nextInt (70));
            TableRead read { table.view(),
                             random.nextDouble(),
                             random.nextDouble() * random.nextInt (3) * 0.7,
                             { random.nextFloat(), random.nextFloat() } };
            const auto before = read;
            const std::vector<Stereo> gains (numFrames, before.gain);
            std::vector<Stereo> frames (numFrames + 1, { 0.25f, -0.25f });

            if (round % 2 == 0)
                kernelsFor (set).addTable (read, std::span (frames).first (numFrames));
            else
                kernelsFor (set).addTable (read, gains, std::span (frames).first (numFrames));

            auto phase = before.phase;

            for (size_t i = 0; i < numFrames; ++i, phase = std::fmod (phase + before.increment, 1.0))
            {
                const auto left = LiteralVoice::read (channels.front(), phase) * before.gain.left;
                const auto right = LiteralVoice::read (channels.back(), phase) * before.gain.right;
                ASSERT_NEAR (frames[i].left, 0.25f + left, 1.0e-6f)
                    << "set " << int (set) << " round " << round;
                ASSERT_NEAR (frames[i].right, -0.25f + right, 1.0e-6f)
                    << "set " << int (set) << " round " << round;
            }

            const auto distance = std::abs (read.phase - phase);
            EXPECT_NEAR (std::min (distance, 1.0 - distance), 0.0, 1.0e-13);
            EXPECT_EQ (frames.back(), (Stereo { 0.25f, -0.25f })) << "wrote behind the end";
        }
}

/** The guards hold numbers that would be heard if a tap reached past them, or a phase past the last frame. */
TEST (TableRead, StaysInsideTheTableJustBelowAWholeCycle)
{
    for (auto set : allSets)
        for (auto channels : { 1, 2 })
        {
            for (auto frames : { 2, 5, 20480 })
            {
                const LiteralTable ones (static_cast<size_t> (channels),
                                         std::vector<float> (size_t (frames), 1.0f));
                const KernelTable table (ones);
                TableRead read { table.view(), std::nextafter (1.0, 0.0), 1.0 - 1.0e-9 };
                std::vector<Stereo> sound (64);
                kernelsFor (set).addTable (read, sound);

                for (auto [left, right] : sound)
                {
                    EXPECT_NEAR (left, 1.0f, 1.0e-6f);
                    EXPECT_NEAR (right, 1.0f, 1.0e-6f);
                }
            }
        }
}

TEST (TableRead, TakesNoHarmFromPhasesThatAreNone)
{
    juce::Random random (3);
    const KernelTable table (noise (2, 100, random));
    const auto infinity = std::numeric_limits<double>::infinity();

    for (auto set : allSets)
        for (auto bad : { std::nan (""), infinity, -infinity, -0.3, -1.0e-300, 1.0, 7.25, 1.0e300 })
            for (auto inIncrement : { false, true })
            {
                TableRead read { table.view(), inIncrement ? 0.5 : bad, inIncrement ? bad : 0.01 };
                std::vector<Stereo> sound (33);
                kernelsFor (set).addTable (read, sound);
                EXPECT_TRUE (read.phase >= 0.0 && read.phase < 1.0) << bad;

                for (auto [left, right] : sound)
                    EXPECT_LE (std::abs (left) + std::abs (right), 4.0f) << bad;
            }
}
} // namespace
} // namespace Zn::Audio::Kernels
