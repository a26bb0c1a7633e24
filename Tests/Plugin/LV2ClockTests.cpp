#include "Plugin/Transport/InternalPlayHead.h"
#include "Plugin/Transport/LV2Clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace Zn::Audio
{
namespace
{
constexpr auto sampleRate = 48000.0;
constexpr auto blockSize = 256;

double quarters (double samples, double bpm)
{
    return samples * bpm / (sampleRate * 60.0);
}

/** A host and the block transport behind it: run block after block and look at what the pattern would see. */
struct Host : juce::AudioPlayHead
{
    Host() { clock.prepare (sampleRate), transport.prepare (sampleRate, blockSize); }

    void run (const std::vector<std::pair<int, LV2Position>>& messages = {}, int numSamples = blockSize)
    {
        for (const auto& [offset, message] : messages)
            clock.receive (message, offset);

        transport.update (this, numSamples);
        clock.advance (numSamples);
        jumps += transport.hasJumped();
    }

    juce::Optional<PositionInfo> getPosition() const override { return clock.getPosition(); }
    double start() const { return transport.getStartPpq(); }

    LV2Clock clock;
    InternalPlayHead transport;
    int jumps = 0;
};

LV2Position playingAt (int frame, int bar, double barBeat, double bpm = 120.0)
{
    return { .frame = static_cast<double> (frame),
             .speed = 1.0,
             .bar = static_cast<double> (bar),
             .barBeat = barBeat,
             .beat = {},
             .beatsPerBar = 4.0,
             .beatUnit = 4,
             .beatsPerMinute = bpm };
}

TEST (LV2Clock, HasNoPositionBeforeTheFirstMessage)
{
    Host host;
    host.run();
    EXPECT_FALSE (host.getPosition().hasValue());
}

TEST (LV2Clock, GoesOnBetweenMessagesAndJumpsOnceForOneElsewhere)
{
    Host host;
    host.run ({ { 0, playingAt (0, 0, 0.0) } });

    for (auto block = 1; block <= 500; ++block)
    {
        host.run();
        ASSERT_NEAR (host.start(), quarters (block * blockSize, 120.0), 1e-9) << "block " << block;
    }

    EXPECT_EQ (host.jumps, 0);

    constexpr auto target = 501 * blockSize + 3 * 24000; // three beats further on
    host.run ({ { 0, playingAt (target, 2, 0.3399999) } });
    EXPECT_EQ (host.jumps, 1);
    EXPECT_NEAR (host.start(), 8.34, 1e-6);

    host.run();
    EXPECT_EQ (host.jumps, 1);
    EXPECT_NEAR (host.start(), 8.34 + quarters (blockSize, 120.0), 1e-6);
}

TEST (LV2Clock, FindsTheQuarterNotesInWhateverTheHostTells)
{
    struct Row
    {
        const char* name;
        LV2Position message;
        double ppq;
    };

    const Row rows[] = {
        { "bar 5, beat 3", { .bar = 4, .barBeat = 2.0, .beatsPerBar = 4.0, .beatUnit = 4 }, 18.0 },
        { "bar 5, beat 3 without a time signature", { .bar = 4, .barBeat = 2.0 }, 18.0 },
        { "bar 3, beat 4 of 6/8", { .bar = 2, .barBeat = 3.0, .beatsPerBar = 6.0, .beatUnit = 8 }, 7.5 },
        { "bar 3 of 7/8", { .bar = 2, .barBeat = 0.0, .beatsPerBar = 7.0, .beatUnit = 8 }, 7.0 },
        { "count-in", { .bar = -1, .barBeat = 3.0, .beatsPerBar = 4.0, .beatUnit = 4 }, -1.0 },
        { "beats alone", { .beat = 5.25 }, 5.25 },
        { "beats after a change of time signature",
          { .bar = 2, .barBeat = 1.5, .beat = 8.5, .beatsPerBar = 4.0, .beatUnit = 4 },
          8.5 },
        { "beats rounded down", { .bar = 2, .barBeat = 1.5, .beat = 9.0, .beatsPerBar = 4.0 }, 9.5 },
        { "beats of 6/8",
          { .bar = 2, .barBeat = 3.0, .beat = 15.0, .beatsPerBar = 6.0, .beatUnit = 8 },
          7.5 },
        { "frame alone", { .frame = 48000 }, 2.0 },
        { "0/0", { .bar = 1, .barBeat = 1.0, .beatsPerBar = 0.0, .beatUnit = 0 }, 5.0 },
    };

    for (auto row : rows)
    {
        row.message.speed = 1.0;
        row.message.beatsPerMinute = 120.0;

        Host host;
        host.run ({ { 0, row.message } });
        EXPECT_NEAR (host.start(), row.ppq, 1e-9) << row.name;

        host.run();
        EXPECT_NEAR (host.start(), row.ppq + quarters (blockSize, 120.0), 1e-9) << row.name;
    }
}

TEST (LV2Clock, TakesPartialMessagesAsChanges)
{
    Host host;
    host.run ({ { 0, playingAt (0, 0, 0.0) } });
    host.run ({ { 0, { .beatsPerMinute = 240.0 } } });
    EXPECT_NEAR (host.start(), quarters (blockSize, 120.0), 1e-12) << "a new tempo counts from here on";

    host.run ({ { 0, { .speed = 0.0 } } });
    const auto stopped = quarters (blockSize, 120.0) + quarters (blockSize, 240.0);
    EXPECT_FALSE (host.transport.isPlaying());
    EXPECT_NEAR (host.start(), stopped, 1e-12);

    host.run();
    host.run();
    host.run ({ { 0, { .speed = 1.0 } } });
    EXPECT_TRUE (host.transport.isPlaying());
    EXPECT_NEAR (host.start(), stopped, 1e-12) << "goes on from where it stood";
    EXPECT_EQ (host.jumps, 0);

    host.run ({ { 0, { .frame = 3 * blockSize + 24000 } } });
    EXPECT_NEAR (host.start(),
                 stopped + quarters (blockSize + 24000, 240.0) - quarters (blockSize, 240.0),
                 0.1);
    EXPECT_EQ (host.jumps, 1);
}

TEST (LV2Clock, MovesWhileStoppedAndStartsThere)
{
    Host host;
    auto message = playingAt (96000, 1, 0.0);
    message.speed = 0.0;
    host.run ({ { 0, message } });
    EXPECT_FALSE (host.transport.isPlaying());
    EXPECT_EQ (host.start(), 4.0);

    host.jumps = 0;
    message.speed = 1.0;
    host.run ({ { 0, message } });
    EXPECT_TRUE (host.transport.isPlaying());
    EXPECT_EQ (host.start(), 4.0);
    EXPECT_EQ (host.jumps, 0);
}

TEST (LV2Clock, PutsAMessageInsideABlockOnItsOwnSample)
{
    Host host;
    host.run ({ { 100, playingAt (0, 0, 0.0) } });
    EXPECT_NEAR (host.transport.getPpqBySample()[100], 0.0, 1e-12);
    EXPECT_LT (host.transport.getPpqBySample()[99], 0.0) << "nothing sounds ahead of the start";

    host.run ({ { 40, playingAt (9000, 4, 0.0) }, { 200, playingAt (96000, 1, 0.0) } });
    EXPECT_NEAR (host.transport.getPpqBySample()[200], 4.0, 1e-12) << "the last message rules";

    host.run();
    EXPECT_NEAR (host.start(), 4.0 + quarters (56, 120.0), 1e-12);
    EXPECT_EQ (host.jumps, 2) << "the start, and the jump";
}

TEST (LV2Clock, GoesOnSmoothlyThroughChangesOfTempoThatAreToldInTicks)
{
    constexpr auto ticksPerBeat = 960.0;
    Host host;
    auto beat = 0.0, tempo = 120.0;

    for (auto block = 0; block < 100; ++block)
    {
        host.run (
            { { 0,
                playingAt (block * blockSize, 0, std::floor (beat * ticksPerBeat) / ticksPerBeat, tempo) } });
        EXPECT_NEAR (host.start(), beat, 1e-9) << "block " << block;

        beat += quarters (blockSize, tempo);
        tempo += 1.0;
    }

    host.run ({ { 0, playingAt (100 * blockSize, 0, beat + 0.01, tempo) } });
    EXPECT_NEAR (host.start(), beat + 0.01, 1e-9) << "that is no rounding";
}

TEST (LV2Clock, StartsAtTheBarAfterAMoveThatIsToldInFramesAlone)
{
    constexpr auto tick = 1.0 / 1920.0;
    Host host;
    host.run (
        { { 0, { .frame = 0.0, .speed = 0.0, .bar = 0, .barBeat = 1.0 - tick, .beatsPerMinute = 120.0 } } });
    host.run ({ { 0, { .frame = 3 * 24000.0 } } });
    host.run ({ { 0, playingAt (3 * 24000, 1, 0.0) } });
    EXPECT_EQ (host.start(), 4.0) << "and not in the step ahead of it";

    auto stop = playingAt (3 * 24000 + blockSize, 1, std::floor (quarters (blockSize, 120.0) / tick) * tick);
    stop.speed = 0.0;
    host.run ({ { 0, stop } });
    stop.speed = 1.0;
    host.run ({ { 0, stop } });
    EXPECT_NEAR (host.start(), 4.0 + quarters (blockSize, 120.0), 1e-9) << "goes on from where it stood";
}

/** Two bars of 4/4, then of 3/4, by a host that counts bars and beats in ticks and has no count of quarter notes. */
TEST (LV2Clock, GoesOnThroughAChangeOfTimeSignature)
{
    constexpr auto quarter = 24000, change = 8 * quarter, lateBy = 100; // samples
    constexpr auto tick = 1.0 / 1920.0;
    const auto waltzAt = [] (int frame, int bar, double barBeat) {
        auto message = playingAt (frame, bar, std::floor (barBeat / tick) * tick);
        message.beatsPerBar = 3.0;
        return message;
    };

    for (const auto offset : { 0, lateBy })
    {
        Host host;
        host.run ({ { offset, playingAt (0, 0, 0.0) } });

        for (auto block = 1; block < change / blockSize; ++block)
            host.run();

        const auto jumps = host.jumps;
        host.run ({ { offset, waltzAt (change, 2, 0.0) } });
        EXPECT_NEAR (host.transport.getPpqBySample()[static_cast<size_t> (offset)], 8.0, 1e-9);

        host.run ({ { 0, waltzAt (change + blockSize - offset, 2, quarters (blockSize - offset, 120.0)) } });
        EXPECT_NEAR (host.start(), 8.0 + quarters (blockSize - offset, 120.0), 1e-9);
        EXPECT_EQ (*host.getPosition()->getPpqPositionOfLastBarStart(), 8.0);
        EXPECT_EQ (host.jumps, jumps) << "it goes on";

        host.run ({ { 0, waltzAt (change + 3 * quarter, 3, 0.0) } });
        EXPECT_EQ (host.start(), 11.0) << "and the bars behind it have its length";

        host.run ({ { 0, playingAt (4 * quarter, 1, 0.0) } });
        EXPECT_EQ (host.start(), 4.0) << "but not those before";
        host.run ({ { 0, waltzAt (change, 2, 0.0) } });
        EXPECT_EQ (host.start(), 8.0) << "straight to where it was heard to change";
    }
}

TEST (LV2Clock, TellsTheBarItIsIn)
{
    Host host;
    host.run ({ { 0, playingAt (0, 0, 3.9999) } });
    host.run();
    EXPECT_EQ (*host.getPosition()->getPpqPositionOfLastBarStart(), 4.0);
    EXPECT_EQ (host.getPosition()->getTimeSignature()->numerator, 4);
}

TEST (LV2Clock, RunsOnTheListenersTempoWithoutOne)
{
    Host host;
    host.transport.setTempo (90.0);
    host.run ({ { 0, { .speed = 1.0, .bar = 1, .barBeat = 0.0 } } });
    host.run();
    EXPECT_NEAR (host.start(), 4.0 + quarters (blockSize, 90.0), 1e-9);
}

TEST (LV2Clock, FollowsASongAtAnotherSpeed)
{
    Host host;
    auto message = playingAt (0, 0, 0.0);
    message.speed = 0.5;
    host.run ({ { 0, message } });
    EXPECT_NEAR (host.transport.getEndPpq(), quarters (blockSize / 2.0, 120.0), 1e-12);

    host.run();
    EXPECT_NEAR (host.start(), quarters (blockSize / 2.0, 120.0), 1e-12);
}

TEST (LV2Clock, LeavesNonsenseOut)
{
    constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
    constexpr auto huge = 1e300;
    Host host;
    host.run ({ { 0, playingAt (0, 0, 0.0) } });
    host.run ({ { 0,
                  { .frame = huge,
                    .speed = nan,
                    .bar = huge,
                    .barBeat = nan,
                    .beat = -nan,
                    .beatsPerBar = huge,
                    .beatUnit = -huge,
                    .beatsPerMinute = 0.0 } } });

    EXPECT_NEAR (host.start(), quarters (blockSize, 120.0), 1e-12);
    EXPECT_EQ (host.jumps, 0);
}
} // namespace
} // namespace Zn::Audio
