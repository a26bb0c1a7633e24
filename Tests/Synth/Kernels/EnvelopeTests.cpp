#include "Synth/Kernels/Envelope.h"

#include <gmock/gmock.h>

#include <vector>

namespace Zn::Audio::Kernels
{
namespace
{
using ::testing::FloatNear;
using ::testing::Pointwise;

constexpr double rate = 1000.0;
constexpr float tolerance = 1.0e-5f;

/** An envelope whose keys a test presses, and whose levels it reads. */
struct Player
{
    EnvelopeRates rates = makeEnvelopeRates (0.005f, 0.01f, 0.5f, 0.01f, rate);
    EnvelopeState state;

    void press() { startNote (state, rates); }
    void lift() { stopNote (state, rates); }

    std::vector<float> levels (int count)
    {
        std::vector<float> result (static_cast<size_t> (count));
        followRates (state, rates);
        fillLevels (state, rates, result);
        return result;
    }
};

TEST (Envelope, RunsThroughItsStagesInStraightLines)
{
    Player player;
    player.press();
    const std::vector<float> up { 0.2f, 0.4f,  0.6f, 0.8f,  1.0f, 0.95f, 0.9f, 0.85f,
                                  0.8f, 0.75f, 0.7f, 0.65f, 0.6f, 0.55f, 0.5f, 0.5f };
    EXPECT_THAT (player.levels (16), Pointwise (FloatNear (tolerance), up));

    player.lift();
    EXPECT_THAT (player.levels (12),
                 Pointwise (FloatNear (tolerance),
                            { 0.45f, 0.4f, 0.35f, 0.3f, 0.25f, 0.2f, 0.15f, 0.1f, 0.05f, 0.0f, 0.0f, 0.0f }));
    EXPECT_FALSE (player.state.isSounding());
}

TEST (Envelope, GoesDownFromWhereverTheKeyWasLifted)
{
    Player player;
    player.press();
    player.levels (3);
    player.lift();
    EXPECT_THAT (player.levels (3), Pointwise (FloatNear (tolerance), { 0.54f, 0.48f, 0.42f }));
    player.lift();
    EXPECT_THAT (player.levels (1), Pointwise (FloatNear (tolerance), { 0.36f }))
        << "the second time means nothing";

    player.press();
    EXPECT_THAT (player.levels (2), Pointwise (FloatNear (tolerance), { 0.56f, 0.76f }))
        << "up again from there";
}

TEST (Envelope, LeavesOutPartsWithoutLength)
{
    Player player;
    player.rates = makeEnvelopeRates (0.0f, 0.0f, 0.5f, 0.0f, rate);
    player.press();
    EXPECT_THAT (player.levels (2), Pointwise (FloatNear (tolerance), { 0.5f, 0.5f }));
    player.lift();
    EXPECT_FALSE (player.state.isSounding());

    player.rates = makeEnvelopeRates (0.0f, 0.01f, 0.5f, 0.0f, rate);
    player.press();
    EXPECT_THAT (player.levels (2), Pointwise (FloatNear (tolerance), { 0.95f, 0.9f }));

    player.rates = makeEnvelopeRates (0.002f, 0.01f, 1.0f, 0.01f, rate);
    stopWithoutTail (player.state);
    player.press();
    EXPECT_THAT (player.levels (3), Pointwise (FloatNear (tolerance), { 0.5f, 1.0f, 1.0f }));
    EXPECT_EQ (player.state.stage, EnvelopeStage::sustain) << "no decay to a full sustain";
}

TEST (Envelope, HoldsAShortNoteInSustainBeforeItIsReleased)
{
    Player player;
    player.rates.holdSamples = 3;
    player.press();
    player.levels (2);
    player.lift();
    EXPECT_THAT (player.levels (5), Pointwise (FloatNear (tolerance), { 0.5f, 0.5f, 0.5f, 0.45f, 0.4f }));

    stopWithoutTail (player.state);
    player.rates.releaseSeconds = 0.0f;
    player.press();
    player.levels (2);
    player.lift();
    EXPECT_THAT (player.levels (4), Pointwise (FloatNear (tolerance), { 0.5f, 0.5f, 0.0f, 0.0f }));
}
} // namespace
} // namespace Zn::Audio::Kernels
