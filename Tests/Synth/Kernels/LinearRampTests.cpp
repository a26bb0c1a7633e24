#include "Synth/Kernels/LinearRamp.h"
#include "Synth/Kernels/Pan.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <gtest/gtest.h>

#include <array>

namespace Zn::Audio::Kernels
{
namespace
{
TEST (LinearRamp, TakesTheStepsOfASmoothedValue)
{
    for (auto seconds : { 0.0, 0.0001, 0.02 })
    {
        LinearRamp ramp;
        juce::SmoothedValue<float> smoothed;
        juce::Random random (7);
        ramp.reset (48000.0, seconds);
        smoothed.reset (48000.0, seconds);

        for (auto i = 0; i < 5000; ++i)
        {
            if (random.nextInt (300) == 0)
            {
                const auto target = random.nextInt (4) == 0 ? ramp.target : random.nextFloat();
                ramp.setTarget (target);
                smoothed.setTargetValue (target);
            }

            if (random.nextInt (100) == 0)
            {
                const auto passed = random.nextInt (200);
                ramp.skip (passed);
                smoothed.skip (passed);
            }

            ASSERT_EQ (ramp.isRamping(), smoothed.isSmoothing()) << i;
            ASSERT_EQ (ramp.next(), smoothed.getNextValue()) << "value " << i << " of " << seconds << " s";
        }
    }
}

TEST (LinearRamp, HasNoLengthWhereTheRateIsUnknown)
{
    LinearRamp ramp;

    for (auto sampleRate : { 0.0, -48000.0, std::nan (""), std::numeric_limits<double>::infinity() })
    {
        ramp.reset (sampleRate, 0.02);
        ramp.setTarget (ramp.target + 1.0f);
        EXPECT_FALSE (ramp.isRamping()) << sampleRate;
    }
}

TEST (Pan, KeepsThePowerOfBothSides)
{
    EXPECT_NEAR (panGains (0.25f).left, 0.9238795f, 1.0e-6f);
    EXPECT_NEAR (panGains (0.25f).right, 0.3826834f, 1.0e-6f);
    EXPECT_NEAR (panGains (0.0f).right, 0.0f, 1.0e-6f);

    LinearRamp pan;
    pan.reset (1000.0, 0.01);
    pan.jumpTo (0.2f);
    pan.setTarget (0.9f);
    std::array<Stereo, 12> gains;
    fillPanGains (pan, 0.5f, gains);

    for (auto [left, right] : gains)
        EXPECT_NEAR (left * left + right * right, 0.25f, 1.0e-6f);

    EXPECT_EQ (gains.back(), (Stereo { 0.5f * panGains (0.9f).left, 0.5f * panGains (0.9f).right }));
    EXPECT_GT (gains.front().left, gains[8].left);
}
} // namespace
} // namespace Zn::Audio::Kernels
