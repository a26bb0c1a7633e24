#include "Synth/Kernels/DelayLine.h"

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

namespace Zn::Audio::Kernels
{
namespace
{
using ::testing::FloatNear;
using ::testing::Pointwise;

constexpr double rate = 48000.0;
constexpr double brightHz = 20000.0, middleHz = 1000.0; // the brightest and the middle of the tone knob

/** A delay of its own line, with ramps that are as long as a test makes them. */
struct Echo
{
    Echo (size_t lineSize, double cutoffHz)
        : line (lineSize), coefficients (makeFilterCoefficients (cutoffHz, 1.0, rate))
    {}

    void set (float delaySamples, float feedback)
    {
        state.delaySamples.setTarget (delaySamples);
        state.feedbackGain.setTarget (feedback);
    }

    void process (std::span<float> left, std::span<float> right)
    {
        processDelay (left, right, coefficients, FilterType::lowPass, state, line);
    }

    std::vector<Stereo> line;
    FilterCoefficients coefficients;
    DelayState state;
};

TEST (DelayLine, MovesToANewTimeAndFeedbackStepByStep)
{
    Echo echo (64, brightHz);
    echo.set (4.0f, 0.0f);
    echo.state.delaySamples.reset (rate, 4.5 / rate);

    for (auto& frame : echo.line)
        frame = { 1.0f, 1.0f };

    for (size_t i = 0; i < echo.line.size(); ++i)
        echo.line[i].left = static_cast<float> (i); // what is read tells where

    echo.coefficients.h = 0.0f; // nothing but the line's own content comes back
    std::vector<float> left (6), right (6);
    echo.set (8.0f, 0.0f);
    echo.process (left, right);
    EXPECT_THAT (left, Pointwise (FloatNear (1.0e-4f), { 5.0f, 5.0f, 5.0f, 5.0f, 4.0f, 3.0f }));
}

TEST (DelayLine, StaysBoundedAtItsHighestFeedbackAndAnyTime)
{
    for (auto delay :
         { 0.0f, 1.0f, 37.3f, 1.0e9f, -4.0f, std::nanf (""), std::numeric_limits<float>::infinity() })
        for (auto cutoff : { 100.0, middleHz, brightHz, 1.0e6 })
        {
            Echo echo (100, cutoff);
            echo.set (delay, 0.4f);
            std::vector<float> left (20000, 1.0f), right (20000, -1.0f);
            echo.process (left, right);

            for (size_t i = 0; i < left.size(); ++i)
                ASSERT_LT (std::abs (left[i]) + std::abs (right[i]), 20.0f) << delay << " at " << cutoff;
        }
}
} // namespace
} // namespace Zn::Audio::Kernels
