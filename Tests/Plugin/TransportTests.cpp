#include "Plugin/Transport/ClockSelection.h"
#include "Plugin/Transport/TransportSlice.h"
#include "Support/TestPlayHead.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <vector>

namespace Zn::Audio
{
namespace
{
using PositionInfo = juce::AudioPlayHead::PositionInfo;
using ::testing::ElementsAreArray;
using Tests::TestPlayHead;

constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
constexpr auto infinity = std::numeric_limits<double>::infinity();

struct Clock
{
    explicit Clock (double sampleRate = 48000.0) { internal.prepare (sampleRate, 512); }

    ClockSource run (juce::AudioPlayHead* host, int numSamples = 512)
    {
        return updateClock (internal, shared, host, keyMode, numSamples);
    }

    ClockSource run (TestPlayHead& host, int numSamples = 512)
    {
        const auto source = run (&host, numSamples);
        host.advance (numSamples);
        return source;
    }

    bool keyMode = false;
    InternalPlayHead internal;
    Sequencer::PlayHead shared;
};

TEST (InternalPlayHead, StandsWhereTheRateIsUnknown)
{
    for (const auto rate : { 0.0, nan })
    {
        TestPlayHead host;
        Clock clock { rate };
        clock.run (host);
        EXPECT_EQ (clock.internal.getEndPpq(), 0.0) << rate;
    }
}

TEST (InternalPlayHead, LetsAHostsSampleCountWanderWhileItPlays)
{
    struct Row
    {
        bool isPlaying;
        std::int64_t time;
        bool jumps;
    };

    for (const auto& row : { Row { true, 512, false },
                             Row { true, 482, false },
                             Row { true, 541, false },
                             Row { true, 481, true },
                             Row { true, 542, true },
                             Row { false, 512, false },
                             Row { false, 513, true },
                             Row { false, 511, true } })
    {
        TestPlayHead host;
        InternalPlayHead clock;
        clock.update (&host, 512);

        host.isPlaying = row.isPlaying;
        host.samples = static_cast<double> (row.time);
        clock.update (&host, 512);

        EXPECT_EQ (clock.hasJumped(), row.jumps) << row.time << (row.isPlaying ? " playing" : " stopped");
        EXPECT_EQ (clock.hasStateChanged(), ! row.isPlaying);
    }
}

TEST (InternalPlayHead, WrapsTheEndOfTheLoopAndNothingBeyond)
{
    struct Row
    {
        double loopStart, loopEnd, start;
        std::vector<double> expected;
    };

    const Row rows[] = {
        { 2.0, 4.0, 3.5, { 3.5, 3.625, 3.75, 3.875, 2.0, 4.125, 4.25, 4.375, 4.5 } },
        { 2.0, 4.0, 1.5, { 1.5, 1.625, 1.75, 1.875, 2.0, 2.125, 2.25, 2.375, 2.5 } },
        { 4.0, 2.0, 3.0, { 3.0, 3.125, 3.25, 3.375, 3.5, 3.625, 3.75, 3.875, 4.0 } },
        { 4.0, 4.0, 3.5, { 3.5, 3.625, 3.75, 3.875, 4.0, 4.125, 4.25, 4.375, 4.5 } },
        { -infinity, infinity, 0.0, { 0.0, 0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875, 1.0 } },
        { nan, 4.0, 0.0, { 0.0, 0.125, 0.25, 0.375, 0.5, 0.625, 0.75, 0.875, 1.0 } },
    };

    for (const auto& row : rows)
    {
        TestPlayHead host { 16.0 };
        host.jumpTo (row.start);
        host.edit = [&row] (auto& position) {
            position.setIsLooping (true);
            position.setLoopPoints (juce::AudioPlayHead::LoopPoints { row.loopStart, row.loopEnd });
        };

        InternalPlayHead clock;
        clock.prepare (16.0, 8);
        clock.update (&host, 8);

        const auto positions = clock.getPpqBySample();
        std::vector<double> actual { positions.begin(), positions.end() };
        actual.push_back (clock.getEndPpq());
        EXPECT_THAT (actual, ElementsAreArray (row.expected))
            << "loop " << row.loopStart << " to " << row.loopEnd << " from " << row.start;
    }
}

TEST (InternalPlayHead, GoesOnEvenlyThroughPositionsThatTheHostRoundsToTicks)
{
    for (auto ticksPerQuarter : { 960.0, 1920.0 })
    {
        TestPlayHead host { 48000.0, 137.0 };
        host.edit = [=] (PositionInfo& position) {
            position.setPpqPosition (std::round (*position.getPpqPosition() * ticksPerQuarter)
                                     / ticksPerQuarter);
        };

        Clock clock;
        clock.run (host);

        for (auto block = 1; block < 6000; ++block)
        {
            const auto expected = host.ppq;
            clock.run (host);
            ASSERT_NEAR (clock.internal.getStartPpq(), expected, 1e-9) << "block " << block;
        }

        host.setTempo (90.0);
        host.jumpTo (host.ppq + 0.5);
        clock.run (host);
        EXPECT_NEAR (clock.internal.getStartPpq(),
                     host.ppq - 512 * host.ppqPerSample(),
                     0.5 / ticksPerQuarter);
    }
}

TEST (InternalPlayHead, FollowsAHostWhoseTempoIsNotQuiteWhatItSays)
{
    TestPlayHead host { 48000.0, 120.0 };
    host.edit = [] (PositionInfo& position) { position.setBpm (120.01); };
    Clock clock;

    for (auto block = 0; block < 20000; ++block)
    {
        const auto before = clock.internal.getEndPpq();
        const auto expected = host.ppq;
        clock.run (host);
        ASSERT_NEAR (clock.internal.getStartPpq(), expected, 1.0 / 900.0) << "block " << block;
        ASSERT_NEAR (clock.internal.getStartPpq(), before, 1.0e-5) << "a leap at block " << block;
    }
}

TEST (InternalPlayHead, KeepsTheLastGoodTempo)
{
    for (auto bad : { 0.0, 0.5, -120.0, nan, infinity, -infinity, 1e300 })
    {
        TestPlayHead host { 48000.0, 87.3 };
        Clock clock;
        clock.run (host);
        const auto rate = clock.internal.getPpqPerSample();

        host.edit = [bad] (auto& position) { position.setBpm (bad); };
        clock.run (host);

        EXPECT_EQ (clock.internal.getPpqPerSample(), rate) << bad;
        EXPECT_FLOAT_EQ (clock.shared.bpm, 87.3f) << bad;
    }
}

TEST (ClockSelection, FollowsTheHostOnlyWhileItPlaysOrKeysWaitForIt)
{
    struct Row
    {
        bool hasPosition, hostPlays, keyMode, internalClock;
        ClockSource expected;
        bool plays;
        Sequencer::PlayHead::Control control;
    };

    using enum Sequencer::PlayHead::Control;

    for (const auto& row : { Row { false, false, false, false, ClockSource::internal, true, nobody },
                             Row { false, false, true, false, ClockSource::internal, true, nobody },
                             Row { true, false, false, false, ClockSource::internal, true, nobody },
                             Row { true, false, true, false, ClockSource::host, false, host },
                             Row { true, true, false, false, ClockSource::host, true, host },
                             Row { true, true, true, false, ClockSource::host, true, host },
                             Row { true, true, false, true, ClockSource::internal, false, editor },
                             Row { true, false, true, true, ClockSource::internal, false, editor } })
    {
        TestPlayHead hostsPlayHead;
        hostsPlayHead.answers = row.hasPosition;
        hostsPlayHead.isPlaying = row.hostPlays;

        Clock clock;
        clock.keyMode = row.keyMode;
        clock.shared.internalClock = row.internalClock;

        const auto name = ::testing::PrintToString (
            std::vector<bool> { row.hasPosition, row.hostPlays, row.keyMode, row.internalClock });
        EXPECT_EQ (clock.run (hostsPlayHead), row.expected) << name;
        EXPECT_EQ (clock.internal.isPlaying(), row.plays) << name;
        EXPECT_EQ (clock.shared.isPlaying, row.plays) << name;
        EXPECT_EQ (clock.shared.control, row.control) << name;
        EXPECT_EQ (clock.shared.hasHostTempo, row.hasPosition) << name;
    }
}

TEST (ClockSelection, GoesOnFromWhereAStoppedHostStood)
{
    TestPlayHead host;
    Clock clock;
    clock.run (host);
    host.stop();
    clock.run (host);

    EXPECT_FALSE (clock.internal.hasJumped());
    EXPECT_FALSE (clock.internal.hasStateChanged()) << "one clock hands over to the other without a gap";
    EXPECT_NEAR (clock.internal.getStartPpq(), host.ppq, 1e-12);
    EXPECT_GT (clock.shared.positionPpq, host.ppq);
}

TEST (ClockSelection, DoesNotLoopItsOwnClockWithTheHost)
{
    TestPlayHead host { 16.0 };
    host.setLoop (0.0, 1.0);

    Clock clock { 16.0 };
    clock.run (host, 4);
    clock.shared.internalClock = true;
    clock.run (host, 8);

    EXPECT_EQ (clock.shared.positionPpq, 1.5);
}

TEST (ClockSelection, MovesTheInternalClockWhereTheEditorPutsIt)
{
    for (const auto isMovedWhileABlockRuns : { false, true })
    {
        TestPlayHead host;
        Clock clock;
        clock.shared.internalClock = true;
        clock.run (host);

        if (isMovedWhileABlockRuns)
        {
            host.edit = [&] (auto&) { clock.shared.moveTo (8.0); };
            clock.run (host);
            host.edit = nullptr;
        }
        else
            clock.shared.moveTo (8.0);

        clock.run (host);
        EXPECT_TRUE (clock.internal.hasJumped()) << isMovedWhileABlockRuns;
        EXPECT_EQ (clock.internal.getStartPpq(), 8.0) << isMovedWhileABlockRuns;

        clock.run (host);
        EXPECT_FALSE (clock.internal.hasJumped()) << isMovedWhileABlockRuns;
    }
}

TEST (ClockSelection, TakesTheEditorsTempoFromAHostWithoutOne)
{
    TestPlayHead host { 48000.0, 150.0 };
    host.edit = [] (auto& position) { position.setBpm ({}); };

    Clock clock;
    clock.shared.bpm = 150.0f;
    clock.run (host);

    EXPECT_NEAR (clock.internal.getEndPpq(), host.ppq, 1e-12);
    EXPECT_EQ (clock.shared.bpm, 150.0f);
}

TEST (TransportSlice, KeepsItsFlagsToTheBlocksFirstSample)
{
    TestPlayHead host;
    host.jumpTo (16.0);
    Clock clock;
    clock.run (&host);

    const TransportSlice block { clock.internal };
    const auto first = block.part ({ 0, 100 });
    const auto later = block.part ({ 100, 1000 });
    const auto nested = later.part ({ 12, 500 });

    EXPECT_TRUE (block.jumped && block.stateChanged);
    EXPECT_TRUE (first.jumped && first.stateChanged && first.clock().jumped && first.clock().stateChanged);
    EXPECT_FALSE (later.jumped || later.stateChanged || later.clock().jumped || later.clock().stateChanged);
    EXPECT_EQ (later.length, 412) << "cut off at the block's end";
    EXPECT_EQ (nested.offset, 112);
    EXPECT_EQ (nested.length, 400);
    EXPECT_EQ (nested.clock().size(), 400);
    EXPECT_EQ (nested.clock().ppq[0], clock.internal.getPpqBySample()[112]);
}

TEST (TransportSlice, AnswersAsAPlayHeadForItsOwnFirstSample)
{
    TestPlayHead host;
    host.jumpTo (16.0);
    Clock clock;
    clock.run (&host);

    for (auto offset : { 0, 100, 512 })
    {
        const TransportSlice slice { clock.internal, { offset, 8 } };
        const auto position = *slice.playHead.getPosition();

        EXPECT_NEAR (*position.getPpqPosition(), 16.0 + offset * host.ppqPerSample(), 1e-9);
        EXPECT_EQ (*position.getBpm(), 120.0);
        EXPECT_EQ (*position.getTimeInSamples(), clock.internal.getTimeInSamples() + offset);
        EXPECT_TRUE (position.getIsPlaying());
    }
}
} // namespace
} // namespace Zn::Audio
