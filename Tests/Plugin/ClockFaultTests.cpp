#include "Plugin/ProcessorFixture.h"

#include "Support/Lateness.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using PositionInfo = juce::AudioPlayHead::PositionInfo;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Tests::isAtMostOneLate;

constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
constexpr auto infinity = std::numeric_limits<double>::infinity();

/** One key held over a pattern of quarters, whose balance is looked at in the end. */
struct Song : ProcessorFixture
{
    explicit Song (int blockSize = 512, double gate = 0.5) : host (processor, 48000.0, blockSize)
    {
        drawQuarters (0, 0, gate);
        host.send (events ("on 60 @0"));
    }

    void expectBalanced()
    {
        drawSteps (0, 0, 0);
        host.runBlock (64);
        EXPECT_EQ (host.unbalanced(), "");
    }

    std::vector<int> starts() const { return startsOf (host, 60); }

    TestHost host;
};
} // namespace

TEST (HostClock, PlaysEveryPassOfALoopAlikeWhereverItWraps)
{
    struct Row
    {
        double start, end; // quarter notes
        int blockSize;
        double gate;
    };

    // In a block's middle, on its edge, one sample before and behind it; steps that reach over the loop's end.
    for (const auto& row : { Row { 0.0, 4.0, 512, 0.5 },
                             Row { 0.0, 4.0, 500, 0.5 },
                             Row { 0.0, 4.0, 500, 1.0 },
                             Row { 0.0, 4.0, 95999, 1.0 },
                             Row { 0.0, 4.0, 10667, 1.0 },
                             Row { 0.0, 1.0, 95999, 0.5 }, // all passes in one block
                             Row { 4.0, 5.0, 50000, 1.0 },
                             Row { 4.0, 8.0, 777, 1.0 },
                             Row { 8.0, 16.0, 1000, 0.9 } })
    {
        Song song { row.blockSize, row.gate };
        song.host.playHead.jumpTo (row.start);
        song.host.playHead.setLoop (row.start, row.end);
        song.host.run (std::llround (3.0 * (row.end - row.start) * quarter));

        std::vector<int> expected;

        for (auto i = 0; i < 3.0 * (row.end - row.start); ++i)
            expected.push_back (i * quarter);

        EXPECT_THAT (song.starts(), testing::Pointwise (isAtMostOneLate(), expected))
            << row.start << " to " << row.end << " in blocks of " << row.blockSize;

        song.expectBalanced();
    }
}

TEST (HostClock, StrikesNothingTwiceWhenTheHostTellsOfALoopThatIsOver)
{
    // The tempo is another one behind the middle of the loop.
    for (const auto tempo : { 150.0, 121.0, 100.0 })
    {
        Song song;
        const auto half = 2.0 * quarter, rate = tempo / 120.0;
        const auto length = half + half / rate;
        song.host.playHead.edit = [&] (PositionInfo& position) {
            const auto time = std::fmod (double (song.host.getPosition()), length);
            const auto isFirstHalf = time < half;
            position.setTimeInSamples (std::llround (time));
            position.setBpm (isFirstHalf ? 120.0 : tempo);
            position.setPpqPosition (isFirstHalf ? time / quarter : 2.0 + (time - half) * rate / quarter);
            position.setIsLooping (true);
            position.setLoopPoints (juce::AudioPlayHead::LoopPoints { 0.0, 4.0 });
        };
        song.host.run (std::llround (3.0 * length));

        EXPECT_THAT (song.starts(), SizeIs (12)) << tempo;
        song.expectBalanced();
    }

    // The host counts in ticks.
    for (const auto ticks : { 480.0, 960.0 })
        for (const auto blockSize : { 500, 511, 512 })
        {
            Song song { blockSize };
            song.host.playHead.setTempo (133.7);
            song.host.playHead.setLoop (0.0, 4.0);
            song.host.playHead.edit = [ticks] (PositionInfo& position) {
                position.setPpqPosition (std::round (*position.getPpqPosition() * ticks) / ticks);
            };
            song.host.run (std::llround (12.0 * quarter * 120.0 / 133.7));

            EXPECT_THAT (song.starts(), SizeIs (12)) << ticks << " in blocks of " << blockSize;
            song.expectBalanced();
        }
}

TEST (HostClock, PlaysOnWhereTheSongStartsAtTheEndOfALoop)
{
    Song song;
    song.host.playHead.jumpTo (3.0);
    song.host.playHead.edit = [] (PositionInfo& position) {
        position.setIsLooping (true);
        position.setLoopPoints (juce::AudioPlayHead::LoopPoints { 0.0, 3.0 });
    };
    song.host.run (bar);
    EXPECT_THAT (song.starts(), ElementsAre (0, quarter, 2 * quarter, 3 * quarter));
    song.expectBalanced();
}

TEST (HostClock, KeepsAPatternThatItsSwitchStartsAtTheEndOfALoop)
{
    // The loop's end lies on the edge of a block, in one, and in one's first and last samples.
    for (const auto blockSize : { 500, 512, 777, 10667, 95999 })
    {
        Song song { blockSize };
        song.drawSteps (0, 0, 0);
        song.drawSteps (1, 1, 0);
        song.state.liveSlots->quantum = 1.0;
        song.host.playHead.jumpTo (2.0);
        song.host.playHead.setLoop (2.0, 6.0);

        song.host.run (7 * quarter / 2);
        song.state.liveSlots->pending = 1;
        song.host.run (3 * bar - 7 * quarter / 2);

        // Where it starts counts as its beginning up to the loop's next end, then the song's does.
        EXPECT_THAT (song.starts(), ElementsAre (bar, 2 * bar + 2 * quarter)) << blockSize;
        song.expectBalanced();
    }
}

TEST (HostClock, StartsTripletsOnTheirSamplesThoughNoBinaryNumberIsTheirs)
{
    for (const auto numSteps : { 3, 6, 12, 24, 48, 96 })
    {
        Song song;
        song.drawSteps (0, numSteps, 0);
        song.host.run (8 * bar);

        std::vector<int> expected;

        for (auto start = 0; start < 8 * bar; start += bar / numSteps)
            expected.push_back (start);

        EXPECT_EQ (song.starts(), expected) << numSteps << " steps a bar";
    }
}

TEST (HostClock, LeavesNothingHangingInLoopsThatMakeNoSense)
{
    struct Row
    {
        double start, end, position; // quarter notes
    };

    for (const auto& row : { Row { 0.0, 0.001, 0.0 },
                             Row { 0.0, 1.0e-9, 0.0 },
                             Row { 1.0, 1.005, 1.0 },
                             Row { 4.0, 4.0, 0.0 },
                             Row { 8.0, 4.0, 5.0 },
                             Row { 8.0, 12.0, 2.0 },
                             Row { 0.0, 1.0, 6.0 },
                             Row { -4.0, -2.0, -4.0 },
                             Row { -1.0, 1.0, -1.0 },
                             Row { nan, 4.0, 0.0 },
                             Row { 0.0, nan, 0.0 },
                             Row { -infinity, infinity, 0.0 },
                             Row { 0.0, 1.0e300, 0.0 },
                             Row { 1.0e9, 1.0e9 + 4.0, 1.0e9 } })
    {
        SCOPED_TRACE (testing::Message() << row.start << " to " << row.end << " from " << row.position);
        Song song { 512, 1.0 };
        song.host.playHead.jumpTo (row.position);
        song.host.playHead.edit = [&] (PositionInfo& position) {
            position.setIsLooping (true);
            position.setLoopPoints (juce::AudioPlayHead::LoopPoints { row.start, row.end });

            // Where a host would be that wraps only between blocks.
            if (const auto length = row.end - row.start;
                length > 0.0 && length < 8.0 && row.position >= row.start)
                position.setPpqPosition (row.start
                                         + std::fmod (*position.getPpqPosition() - row.start, length));
        };

        song.host.run (bar);
        song.expectBalanced();
    }
}

TEST (HostClock, GoesToWhereTheSongJumpsWithoutPlayingWhatLiesBetween)
{
    struct Row
    {
        double target;           // quarter notes
        std::vector<int> starts; // samples behind the jump
    };

    const std::pair<const char*, std::function<void (PositionInfo&)>> hosts[] = {
        { "all", {} },
        { "samples", [] (auto& p) { p.setPpqPosition ({}); } },
        { "quarter notes", [] (auto& p) { p.setTimeInSamples ({}); } },
    };

    for (const auto& [told, edit] : hosts)
        for (const auto& row : { Row { 4000.25, { 18000, 42000, 66000, 90000 } },
                                 Row { 1.0e9 + 0.25, { 18000, 42000, 66000, 90000 } },
                                 Row { -2.25, { 54000, 78000 } },
                                 Row { -8.0, {} },
                                 Row { 0.75, { 6000, 30000, 54000, 78000 } } })
        {
            Song song { 480, 0.2 };
            song.host.playHead.edit = edit;
            song.host.run (quarter / 2);
            const auto before = static_cast<int> (song.host.getPosition());
            song.host.playHead.jumpTo (row.target);
            song.host.run (bar);

            auto expected = row.starts;
            std::ranges::for_each (expected, [before] (int& sample) { sample += before; });
            expected.insert (expected.begin(), 0);
            EXPECT_THAT (song.starts(), testing::Pointwise (isAtMostOneLate(), expected))
                << row.target << ", told in " << told;
            song.expectBalanced();
        }
}

TEST (HostClock, BeginsWithTheStepOfThePositionWhereTheSongStarts)
{
    struct Row
    {
        double start;   // quarter notes
        int firstStart; // samples
    };

    for (const auto keyMode : { true, false })
        for (const auto& row : { Row { 23.999999, 0 },
                                 Row { 24.000001, 0 },
                                 Row { 24.0, 0 },
                                 Row { 18.25, 18000 },
                                 Row { 18.999999, 0 },
                                 Row { 19.00001, 0 },
                                 Row { -0.000001, 0 },
                                 Row { -0.5, 12000 } })
        {
            Song song { 512, row.start == 18.25 ? 0.2 : 1.0 };
            song.state.keyMode = keyMode;
            song.host.playHead.stop();
            song.host.playHead.jumpTo (row.start);
            song.host.send (events ("off 60 @0"));
            song.host.run (5120);

            const auto start = static_cast<int> (song.host.getPosition());
            const auto soFar = song.starts().size();
            song.host.playHead.play();
            song.host.playHead.jumpTo (row.start);
            song.host.send (events ("on 60 @0"));
            song.host.run (bar);

            auto starts = song.starts();
            starts.erase (starts.begin(), starts.begin() + static_cast<std::ptrdiff_t> (soFar));
            ASSERT_THAT (starts, testing::Not (IsEmpty())) << row.start;

            for (size_t i = 0; i < starts.size(); ++i)
                EXPECT_NEAR (starts[i], start + row.firstStart + static_cast<int> (i) * quarter, 1)
                    << "from " << row.start << (keyMode ? " in key mode" : "");

            song.expectBalanced();
        }
}

TEST (HostClock, StaysOnTheGridThroughEveryTempo)
{
    Song song { 512, 0.1 };
    juce::Random random (3);
    std::vector<double> ppqOfStarts;
    constexpr auto longestSample = 1.001 * 999.0 / (60.0 * 48000.0); // quarter notes

    for (auto block = 0; block < 4000; ++block)
    {
        song.host.playHead.setTempo (block % 3 == 0 ? 999.0 : 20.0 + random.nextInt (980));
        const auto ppq = song.host.playHead.ppq, ppqPerSample = song.host.playHead.ppqPerSample();
        const auto before = song.host.getPosition();
        const auto known = song.starts().size();
        song.host.runBlock (1 + random.nextInt (512));

        const auto starts = song.starts();

        for (auto i = known; i < starts.size(); ++i)
        {
            const auto place = ppq + double (starts[i] - before) * ppqPerSample;
            EXPECT_NEAR (place, std::round (place), longestSample) << "block " << block;
            ppqOfStarts.push_back (std::round (place));
        }
    }

    ASSERT_GT (ppqOfStarts.size(), 100u);

    for (size_t i = 0; i < ppqOfStarts.size(); ++i)
        ASSERT_EQ (ppqOfStarts[i], double (i)) << "each beat once";

    song.expectBalanced();
}

TEST (HostClock, MakesUpForWhatAHostDoesNotTell)
{
    struct Row
    {
        const char* name;
        std::function<void (PositionInfo&)> edit;
        int beat = quarter; // samples between two onsets
    };

    const auto timeSignature = [] (int numerator, int denominator) {
        return [=] (PositionInfo& p) {
            p.setTimeSignature (juce::AudioPlayHead::TimeSignature { numerator, denominator });
        };
    };

    const Row rows[] = {
        { "everything told", [] (auto&) {} },
        { "no quarter notes", [] (auto& p) { p.setPpqPosition ({}); } },
        { "no samples", [] (auto& p) { p.setTimeInSamples ({}); } },
        { "neither", [] (auto& p) { p.setPpqPosition ({}), p.setTimeInSamples ({}); } },
        { "quarter notes stand at 0", [] (auto& p) { p.setPpqPosition (nan); } },
        { "quarter notes absurd", [] (auto& p) { p.setPpqPosition (1e300); } },
        { "samples absurd", [] (auto& p) { p.setTimeInSamples (std::numeric_limits<std::int64_t>::min()); } },
        { "no tempo, so ours", [] (auto& p) { p.setBpm ({}), p.setPpqPosition ({}); }, quarter * 12 / 10 },
        { "tempo 0", [] (auto& p) { p.setBpm (0.0), p.setPpqPosition ({}); }, quarter * 12 / 10 },
        { "tempo not a number", [] (auto& p) { p.setBpm (nan), p.setPpqPosition ({}); }, quarter * 12 / 10 },
        { "7/8", timeSignature (7, 8) },
        { "1/1", timeSignature (1, 1) },
        { "0/0", timeSignature (0, 0) },
        { "-1/-1", timeSignature (-1, -1) },
        { "another in every bar",
          [] (auto& p) {
              const auto barNumber = static_cast<int> (*p.getPpqPosition() / 4.0);
              p.setTimeSignature (
                  juce::AudioPlayHead::TimeSignature { 3 + barNumber % 4, 4 << barNumber % 2 });
          } },
    };

    for (const auto& row : rows)
    {
        Song song;
        song.host.playHead.edit = row.edit;
        song.host.run (4 * row.beat);
        EXPECT_THAT (song.starts(), ElementsAre (0, row.beat, 2 * row.beat, 3 * row.beat)) << row.name;

        // The grid on which slots change does not ask for it either.
        song.drawQuarters (1, 1);
        song.state.liveSlots->pending = 1;
        song.host.run (2 * row.beat);
        EXPECT_EQ (startsOf (song.host, 72).front(), 4 * row.beat) << row.name;
    }
}

TEST (HostClock, IsOursWithoutAPlayHead)
{
    Song song;
    song.processor.setPlayHead (nullptr);
    song.host.run (3 * quarter);
    EXPECT_THAT (song.starts(), ElementsAre (0, quarter * 12 / 10, quarter * 24 / 10))
        << "at 100 beats a minute";
    song.expectBalanced();
}

TEST (HostClock, KeepsAPatternThatAKeyStartedThroughAWanderingSampleCount)
{
    for (const auto& [wander, keeps] : { std::pair (29, true), std::pair (-29, true), std::pair (31, false) })
    {
        Song song { 500, 0.2 };
        song.set ("Retrigger", "On");
        song.host.run (5000);
        song.host.send (events ("off 60 @0, on 60 @1000"));
        song.host.run (5000);

        const auto samples = wander;
        song.host.playHead.edit = [samples] (auto& p) {
            p.setTimeInSamples (*p.getTimeInSamples() + samples);
        };
        song.host.run (500);
        song.host.playHead.edit = {};
        song.host.run (2 * quarter);

        EXPECT_EQ (testing::Value (song.starts(), testing::Contains (6000 + quarter)), keeps) << wander;
        song.expectBalanced();
    }
}

TEST (HostClock, MayTalkNonsenseWithoutAnythingHanging)
{
    const double values[] = { nan,      infinity, -infinity, 1.0e308,
                              -1.0e308, 1.0e18,   -1.0e18,   5.0e-324,
                              -2.0,     0.0,      0.5,       24.0,
                              999.0,    1.0e9,    1.0e12,    4503599627370496.0 };

    for (auto seed = 0; seed < 100; ++seed)
    {
        juce::Random random (seed);
        const auto pick = [&] { return values[random.nextInt (juce::numElementsInArray (values))]; };

        Song song { 512, 1.0 };
        song.host.nextBlockSize = [&random] { return 1 + random.nextInt (512); };
        song.host.playHead.edit = [&] (PositionInfo& position) {
            if (random.nextInt (4) == 0)
                return;

            position.setIsPlaying (random.nextInt (8) != 0);
            position.setBpm (pick());
            position.setPpqPosition (pick());
            position.setTimeInSamples (random.nextBool() ? random.nextInt64() : random.nextInt (1000));
            position.setIsLooping (random.nextBool());
            position.setLoopPoints (juce::AudioPlayHead::LoopPoints { pick(), pick() });
        };

        for (auto i = 0; i < 20; ++i)
        {
            song.state.keyMode = random.nextBool();
            song.state.liveSlots->pending = random.nextInt (2);
            song.state.playHead->internalClock = random.nextInt (4) == 0;
            song.host.run (2000);
        }

        song.expectBalanced();
        ASSERT_FALSE (testing::Test::HasFailure()) << "seed " << seed;
        EXPECT_TRUE (std::isfinite (song.state.playHead->positionPpq)) << "seed " << seed;

        song.host.playHead.edit = {};
        song.state.playHead->internalClock = false;
        song.state.liveSlots->enable = false;
        song.state.liveSlots->pending = 0;
        song.drawQuarters (0, 0);
        song.host.playHead.jumpTo (0.0);
        const auto before = song.starts().size();
        song.host.run (bar);
        EXPECT_THAT (song.starts(), SizeIs (before + 4)) << "plays again, seed " << seed;
    }
}
} // namespace Zn::Audio::Plugins::Vornel
