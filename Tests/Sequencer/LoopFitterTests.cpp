#include "Foundation/Events/Listener.h"
#include "Sequencer/Modifiers/Clip.h"
#include "Sequencer/Modifiers/DenumParam.h"
#include "Sequencer/Modifiers/Limits.h"
#include "Sequencer/Modifiers/LoopFitter.h"
#include "Sequencer/Modifiers/NumParam.h"
#include "Support/Documents.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

#include <map>

namespace Zn::Sequencer::Modifiers
{
namespace
{
using namespace Tests;

constexpr auto numTrees = 300;

std::unique_ptr<StepPulseSequencer> sequence (std::string_view drawing, double quarters, int row = 60)
{
    auto result = std::make_unique<StepPulseSequencer>();
    result->steps = steps (drawing, row);
    result->duration.setQuarters (quarters);
    return result;
}

/** A lane with one beat for each letter of a text. The letters are the beats' names. */
std::unique_ptr<TimedSteps> laneOf (const std::string& letters, double beat = 1.0)
{
    auto lane = std::make_unique<TimedSteps>();

    for (const auto letter : letters)
    {
        lane->sequences.push_back (sequence ("x", beat));
        lane->sequences.back()->name = juce::String::charToString (static_cast<juce::juce_wchar> (letter));
    }

    return lane;
}

/** "ab.d 1 1 0.5 1": the names of a lane's beats, blank ones as dots, and how long they last. */
std::string beatsOf (const TimedSteps& lane)
{
    std::ostringstream names, lengths;

    for (const auto& beat : lane.sequences)
    {
        names << (beat->name.isEmpty() ? "." : beat->name.toStdString());
        lengths << " " << beat->duration.value();
    }

    return names.str() + lengths.str();
}

/** A loop of random lanes over random bars: empty, muted, soloed, zero-length ones among them. */
LoopFitter randomLoop (juce::Random& random)
{
    const int denums[] = { 1, 3, 4, 8, 10, 16 };
    const char* drawings[] = { "x", "x-.x", "xo.", "", "xxx-xx", "...." };
    LoopFitter loop;
    Bars bars { {} };

    for (auto bar = random.nextInt (4); --bar >= 0;)
        bars.list.push_back ({ random.nextInt (8), denums[random.nextInt (6)] });

    loop.events.loopTime.setBars (bars);

    for (auto number = random.nextInt (5); --number >= 0;)
    {
        auto& lane = *loop.events.lanes.emplace_back (std::make_unique<TimedSteps>());
        lane.mute = random.nextInt (4) == 0;
        lane.solo = random.nextInt (8) == 0;
        lane.channel = 1 + number;

        for (auto beat = random.nextInt (6); --beat >= 0;)
            lane.sequences.push_back (
                sequence (drawings[random.nextInt (6)],
                          random.nextInt (9) == 0 ? 0.0 : 4.0 / denums[random.nextInt (6)],
                          40 + number));
    }

    return loop;
}

/** What one lane plays in a loop, worked out note by note without looking at how lanes are repeated. */
std::vector<double> expectedStarts (const TimedSteps& lane, double loopLength)
{
    constexpr auto rounding = 1.0e-6;
    const auto pass = rendered (lane);
    std::vector<double> starts;

    for (const auto& element : pass.notes)
    {
        auto start = element.time.start;

        do
        {
            if (start < loopLength - rounding)
                starts.push_back (start);

            start += pass.length;
        } while (pass.length > 0.0 && start < loopLength - rounding);
    }

    std::sort (starts.begin(), starts.end());
    return starts;
}
} // namespace

TEST (LoopFitter, FillsItsLoopWithEveryLaneThatIsHeardAndNothingElse)
{
    juce::Random random { 1 };

    for (auto tree = 0; tree < numTrees; ++tree)
    {
        const auto loop = randomLoop (random);
        const auto length = loop.events.loopTime.length();
        const auto events = rendered (loop);
        const auto& lanes = loop.events.lanes;
        const auto anySolo = std::any_of (lanes.begin(), lanes.end(), [] (auto& lane) { return lane->solo; });

        EXPECT_EQ (events.length, length) << tree;
        std::map<int, std::vector<double>> starts;

        for (const auto& element : events.notes)
            starts[element.event.channel].push_back (element.time.start);

        for (const auto& lane : lanes)
        {
            const auto isHeard = ! lane->mute && (lane->solo || ! anySolo);
            const auto expected = isHeard ? expectedStarts (*lane, length) : std::vector<double>();
            const auto& actual = starts[lane->channel];
            ASSERT_EQ (actual.size(), expected.size()) << "tree " << tree << " lane " << lane->channel;

            for (std::size_t i = 0; i < actual.size(); ++i)
                EXPECT_NEAR (actual[i], expected[i], 1e-6) << "tree " << tree << " lane " << lane->channel;
        }

        const auto byStart = [] (auto& a, auto& b) { return a.time.start < b.time.start; };
        EXPECT_TRUE (std::is_sorted (events.notes.begin(), events.notes.end(), byStart)) << tree;
        EXPECT_TRUE (std::is_sorted (events.sequences.begin(), events.sequences.end(), byStart)) << tree;
        EXPECT_EQ (asText (rendered (*loop.clone())), asText (events)) << tree;

        for (const auto& mark : events.sequences)
            EXPECT_TRUE (mark.time == (Ranges::Span { 0.0, length }) || mark.time.start < length) << tree;
    }
}

TEST (LoopFitter, ComesToAnEndWhateverItHolds)
{
    const std::vector<std::pair<const char*, std::size_t>> rows {
        { R"({"LoopTime": {"Bars": []}, "Sequences": [{"Sequences": [{"Steps": [{"enabled": true}]}]}]})",
          0 },
        { R"({"Sequences": [{"Sequences": [{"duration": 0, "Steps": [{"enabled": true}]}]}]})", 1 },
        { R"({"Sequences": [{"Sequences": [{"duration": 1e-9, "Steps": [{"enabled": true}]}]}]})", 1 },
        { R"({"LoopTime": {"Bars": [{"num": 2147483647, "denum": 1}]},
              "Sequences": [{"Sequences": [{"duration": 0.002, "Steps": [{"enabled": true}]}]}]})",
          4096 },
        { R"({"Sequences": [{"Sequences": [{"duration": 1,
              "Steps": [{"enabled": true, "Time": {"start": -1e300}},
                        {"enabled": true, "Time": {"start": 1e300}}]}]}]})",
          0 },
        { R"({"Sequences": [null, 5, {"Sequences": {"a": 3}, "Duration": []}], "LoopTime": "long"})", 0 },
    };

    for (const auto& [document, numNotes] : rows)
    {
        LoopFitter loop;
        load (loop, { { "Events", parsed (document) } });
        EXPECT_EQ (rendered (loop).notes.size(), numNotes) << document;
    }

    // Many lanes of many notes, each repeated as often as a lane may be.
    LoopFitter loop;
    loop.events.loopTime.setBars ({ { { 4096, 4 } } });
    auto dense = sequence ("x", 1.0);
    dense->steps.resize (4096, dense->steps.front());

    for (auto number = 0; number < 8; ++number)
        loop.events.lanes.emplace_back (std::make_unique<TimedSteps>())
            ->sequences.push_back (std::make_unique<StepPulseSequencer> (*dense));

    EXPECT_LT (rendered (loop).notes.size(), 2 * maxRepeated);
}

TEST (LoopFitter, HasExactlyTheseKeysAndComesBackAsTheChildOfAClip)
{
    LoopFitter loop;
    auto calls = 0;
    const Events::Listener listener (loop.events, [&calls] { ++calls; });
    load (loop, parsed (R"({"Events": {"Sequences": [{}]}})"));
    EXPECT_EQ (calls, 1);
    EXPECT_EQ (saved (loop), parsed (R"({
        "name": "",
        "Events": {
            "name": "",
            "LoopTime": { "Bars": [ { "denum": 4, "num": 4 } ] },
            "Sequences": [
                {
                    "name": "", "mute": false, "solo": false, "Sequences": null,
                    "Duration": { "Time": { "Bars": [ { "denum": 4, "num": 4 } ] }, "duration": 4.0, "mode": 0 }
                }
            ]
        }
    })"));

    juce::Random random { 2 };

    for (auto tree = 0; tree < numTrees; ++tree)
    {
        const auto original = randomLoop (random);
        Clip clip, copy;
        clip.setChild (original.clone());
        load (copy, saved (clip));

        EXPECT_EQ (saved (copy), saved (clip)) << tree;
        EXPECT_EQ (asText (rendered (copy)), asText (rendered (original))) << tree;
    }
}

TEST (BarChange, GivesEachBeatOfABarOneSequence)
{
    struct Row
    {
        std::string lane;
        std::vector<Bar> bars;
        int index;
        Bar newBar;
        std::string beats;
    };

    const std::vector<Row> rows {
        // The bar grows: blank beats behind its last one.
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 0, { 5, 4 }, "abc..def 1 1 1 1 1 1 1 1" },
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 1, { 4, 4 }, "abcdef. 1 1 1 1 1 1 1" },
        { "ab", { { 3, 4 }, { 3, 4 } }, 0, { 4, 4 }, "ab.. 1 1 1 1" },
        // It shrinks: its last beats go, later ones move up; the last bar keeps them.
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 0, { 1, 4 }, "adef 1 1 1 1" },
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 1, { 1, 4 }, "abcdef 1 1 1 1 1 1" },
        { "abcd", { { 3, 4 } }, 0, { 2, 4 }, "abd 1 1 1" },
        { "abcd", { { 3, 4 } }, 0, { 4, 4 }, "abc.d 1 1 1 1 1" },
        // Its beats become other ones.
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 1, { 3, 8 }, "abcdef 1 1 1 0.5 0.5 0.5" },
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 0, { 2, 2 }, "abdef 2 2 1 1 1" },
        // The lane has nothing where the bar is.
        { "", { { 3, 4 }, { 3, 4 } }, 1, { 2, 8 }, ".. 0.5 0.5" },
        { "abc", { { 3, 4 }, { 3, 4 } }, 1, { 2, 4 }, "abc.. 1 1 1 1 1" },
        // Bars without a length have no beats.
        { "abcdef", { { 3, 4 }, { 3, 4 } }, 0, { 3, 0 }, "def 1 1 1" },
        { "abc", { { -1, 4 }, { 3, 4 } }, 0, { -9, 4 }, "abc 1 1 1" },
        { "abc", { { 3, 4 } }, 7, { 1, 4 }, "abc 1 1 1" },
    };

    for (const auto& [lane, bars, index, newBar, beats] : rows)
    {
        EventsContainer loop;
        loop.loopTime.setBars ({ bars });
        loop.lanes.push_back (laneOf (lane));
        loop.loopTime.setBar (index, newBar);
        EXPECT_EQ (beatsOf (*loop.lanes[0]), beats) << lane << " " << index << " " << newBar.num;
    }
}

TEST (BarChange, NeverMakesALaneLongerThanAFileCanHold)
{
    EventsContainer loop;
    loop.lanes.push_back (laneOf ("abcd"));

    for (auto num : { 2147483647, 1, 2000, -5, 1024 })
        loop.loopTime.setBar (0, { num, 4 });

    EXPECT_EQ (loop.lanes[0]->sequences.size(), 1024u);
}

} // namespace Zn::Sequencer::Modifiers
