#include "Synth/Kernels/DelayLine.h"

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

namespace Zn::Audio::Kernels
{
namespace
{
using ::testing::Each;
using ::testing::FloatNear;
using ::testing::Pointwise;

constexpr double rate = 48000.0;
constexpr double brightHz = 20000.0, middleHz = 1000.0; // both ends and the middle of the tone knob

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

    /** The left side of the answer to an impulse there; nothing may be heard on the right. */
    std::vector<float> impulse (size_t length)
    {
        std::vector<float> left (length), right (length);
        left.front() = 1.0f;
        process (left, right);
        EXPECT_THAT (right, Each (0.0f));
        return left;
    }

    std::vector<Stereo> line;
    FilterCoefficients coefficients;
    DelayState state;
};

TEST (DelayLine, RepeatsAnImpulseThroughItsFilter)
{
    struct Row
    {
        size_t lineSize;
        float delaySamples, feedback;
        double cutoffHz;
        std::vector<float> expected;
    };

    for (const auto& row :
         { Row { 64,
                 3.0f,
                 0.4f,
                 middleHz,
                 { 0,
                   0,
                   0,
                   0.0040155f,
                   0.0155055f,
                   0.0293541f,
                   0.0410343f,
                   0.0522369f,
                   0.0644781f,
                   0.0758933f } },
           Row { 64,
                 3.0f,
                 0.4f,
                 brightHz,
                 { 0, 0, 0, 0.7464102f, 0.4585641f, -0.3368409f, 0.1916021f, 0.4580283f, 0.4301175f } },
           Row { 64, 2.5f, 0.0f, brightHz, { 0, 0, 0.3732051f, 0.6024871f, 0.0608616f } },
           Row { 8, 100.0f, 0.0f, brightHz, { 0, 0, 0, 0, 0, 0, 0.7464102f } } })
    {
        Echo echo (row.lineSize, row.cutoffHz);
        echo.set (row.delaySamples, row.feedback);
        EXPECT_THAT (echo.impulse (row.expected.size()), Pointwise (FloatNear (1.0e-5f), row.expected))
            << row.delaySamples << " samples";
    }
}

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

TEST (DelayLine, IsTheSameHoweverTheBlockIsCut)
{
    for (size_t cut : { 0u, 1u, 13u, 99u })
    {
        Echo whole (50, middleHz), pieces (50, middleHz);
        std::vector<float> a (200), b (200);

        for (auto* echo : { &whole, &pieces })
        {
            echo->set (20.25f, 0.4f);
            echo->state.delaySamples.reset (rate, 30.0 / rate);
            echo->state.feedbackGain.reset (rate, 60.0 / rate);
            echo->set (7.75f, 0.1f);
        }

        for (size_t i = 0; i < a.size(); ++i)
            a[i] = b[i] = std::sin (0.1f * static_cast<float> (i * i));

        auto aRight = a, bRight = b;
        whole.process (a, aRight);
        pieces.process (std::span (b).first (cut), std::span (bRight).first (cut));
        pieces.process (std::span (b).subspan (cut), std::span (bRight).subspan (cut));
        EXPECT_EQ (a, b) << cut;
        EXPECT_EQ (a, aRight) << "both sides are alike";
        EXPECT_EQ (aRight, bRight) << cut;
    }
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

TEST (DelayLine, IsSilentOnceCleared)
{
    Echo echo (32, middleHz);
    echo.set (9.0f, 0.4f);
    echo.impulse (40);
    clearDelay (echo.state, echo.line);
    std::vector<float> left (100), right (100);
    echo.process (left, right);
    EXPECT_THAT (left, Each (0.0f));
}
} // namespace
} // namespace Zn::Audio::Kernels
