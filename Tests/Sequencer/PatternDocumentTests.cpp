#include "Foundation/Events/Listener.h"
#include "Sequencer/Modifiers/NoteList.h"
#include "Sequencer/Modifiers/Pattern.h"
#include "Sequencer/Modifiers/TimedSteps.h"
#include "Sequencer/PatternSlot.h"
#include "Support/Documents.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Zn::Sequencer::Modifiers
{
namespace
{
using nlohmann::json;
using namespace Tests;

/** Saves, loads into another object, saves again. */
template <typename Model>
void expectRoundTrip (Model& model, Model other)
{
    const auto first = saved (model);
    load (other, first);
    EXPECT_EQ (saved (other), first);
}

TEST (PatternDocument, ComesBackAsItWasSaved)
{
    PatternSlot slot;
    slot.multiply = true;
    slot.time.setBars ({ { { 42, 256 }, { 3, 8 } } });
    slot.pattern.name = "Lead";
    slot.pattern.grid = 68;
    slot.pattern.gate = 0.5;
    slot.pattern.steps = steps ("x-o.xx");
    slot.pattern.steps[1].event = { 0.25f, -0.5f, 0.125f, 0.3f, 99, 7 };
    expectRoundTrip (slot, PatternSlot());

    TimedSteps lane;
    lane.solo = true;
    lane.sequences.push_back (std::make_unique<StepPulseSequencer> (slot.pattern));
    lane.sequences.push_back (std::make_unique<StepPulseSequencer>());
    expectRoundTrip (lane, TimedSteps());

    NoteList list;
    list.notes = steps ("xx");
    Pattern inner, outer;
    inner.time.setBars ({ { { 7, 8 } } });

    for (const auto* child : std::initializer_list<const Base*> { &list, &slot.pattern, &inner })
    {
        auto& clip = outer.clips.emplace_back();
        clip.time = { 1.5, 2.0 };
        clip.clip.time = { 0.25, 3.0 };
        clip.clip.setChild (child->clone());
    }

    expectRoundTrip (outer, Pattern());

    Pattern loaded;
    load (loaded, saved (outer));
    EXPECT_EQ (asText (rendered (loaded)), asText (rendered (outer)));
}

TEST (PatternDocument, NamesChanceAndSpreadOnlyWhereTheyAreUsed)
{
    StepPulseSequencer pattern;
    pattern.steps = steps ("xx");
    pattern.steps[0].event.chance = 0.5f;
    pattern.steps[0].event.spreadHigh = 0.25f;

    const auto document = saved (pattern)["Steps"];
    EXPECT_EQ (document[0]["Play"], parsed (R"({"chance": 0.5, "spreadLow": 0.0, "spreadHigh": 0.25})"));
    EXPECT_FALSE (document[1].contains ("Play"));
}

TEST (PatternDocument, TakesAVelocityAsTextAndLoadsOn)
{
    const std::vector<std::pair<std::string, float>> rows {
        { R"("0.25")", 0.25f }, { R"("loud")", 0.0f }, { R"("")", 0.0f }, { R"("nan")", 0.0f },
        { R"("1e999")", 0.0f }, { "2.5", 2.5f },       { "1", 1.0f },     { "null", 0.8f },
    };

    for (const auto& [text, velocity] : rows)
    {
        NoteEvent event;
        load (event, parsed (R"({"noteNum": 50, "channel": 4, "velocity": )" + text + "}"));
        EXPECT_EQ (event.velocity, velocity) << text;
        EXPECT_EQ (event.channel, 4) << text;
    }
}

TEST (PatternDocument, OfAClipNamesItsChildByTypeTheFirstRegisteredWinning)
{
    Clip clip;
    load (clip, parsed (R"({"StepPulseSequencer": {"duration": 3}, "Pattern": {"name": "p"}})"));
    EXPECT_EQ (clip.getChild().name, "p");

    load (clip, parsed (R"({"Time": {"start": 1.0}, "Unknown": {}})"));
    EXPECT_EQ (clip.getChild().name, "p") << "no known type leaves the child";

    load (clip, parsed (R"({"NoteList": {"Events": []}, "Pattern": {}})"));
    EXPECT_NE (dynamic_cast<const NoteList*> (&clip.getChild()), nullptr);
}

TEST (PatternDocument, TellsListenersWhenItHasBeenLoaded)
{
    TimedSteps lane;
    lane.sequences.push_back (std::make_unique<StepPulseSequencer>());

    std::string calls;
    const Events::Listener outer (lane, [&calls] { calls += "lane "; });
    const Events::Listener inner (*lane.sequences[0], [&calls] { calls += "sequence "; });

    saved (lane);
    load (lane, parsed (R"({"Sequences": [{}]})"));
    EXPECT_EQ (calls, "sequence lane ");
}

TEST (HostilePatternDocument, RendersFiniteTimesAndSmallLists)
{
    const std::vector<std::string> documents {
        R"({"Pattern": 5, "Time": [], "Multiply": {}})",
        R"({"Pattern": {"grid": -3, "length": "0", "Steps": {"a": {}, "b": 7}}})",
        R"({"Multiply": 1, "Pattern": {"grid": 2147483647, "Steps": [null, [], "x", 3, {"enabled": true}]}})",
        R"({"Time": {"Bars": [{"num": 2147483647, "denum": 1}]}, "Multiply": true})",
        R"({"Time": {"Bars": [{"num": 4, "denum": -2147483648}, {"num": -1e300}, {"denum": 1e300}]}})",
        R"({"Pattern": {"Steps": [{"enabled": true, "Time": {"start": 1e308, "length": 1e308}}]}})",
        R"({"Pattern": {"Steps": [{"enabled": true, "Time": {"start": -1e308, "length": -1e308}}]}})",
        R"({"Pattern": {"Steps": [{"enabled": true, "Event": {"noteNum": -1e300, "velocity": 1e300}}]}})",
        R"({"Pattern": {"duration": 1e308, "Steps": [{"enabled": true, "Time": {"start": 1}}]}})",
    };

    for (const auto& document : documents)
    {
        PatternSlot slot;
        load (slot, parsed (document));
        slot.pattern.duration.setQuarters (slot.length());
        const auto events = rendered (slot.pattern);

        EXPECT_TRUE (events.length >= 0.0 && events.length <= longestTime) << document;

        for (const auto& element : events.notes)
        {
            EXPECT_TRUE (std::isfinite (element.time.start) && std::isfinite (element.time.end()))
                << document;
            EXPECT_TRUE (std::isfinite (element.event.velocity)) << document;
            EXPECT_TRUE (element.event.noteNum >= -1 && element.event.noteNum <= 128) << document;
        }
    }
}

TEST (HostilePatternDocument, IgnoresWhatIsBeyondTheLargestSizes)
{
    const json many (100000, json::object());

    StepPulseSequencer pattern;
    load (pattern, json { { "Steps", many }, { "Duration", { { "Time", { { "Bars", many } } } } } });
    EXPECT_EQ (pattern.steps.size(), 4096u);
    EXPECT_EQ (pattern.duration.time.getBars().list.size(), 256u);

    Pattern clips;
    load (clips, json { { "Clips", many } });
    EXPECT_EQ (clips.clips.size(), 1024u);

    TimedSteps lane;
    load (lane, json { { "Sequences", many } });
    EXPECT_EQ (lane.sequences.size(), 1024u);
    EXPECT_EQ (rendered (lane).length, 1024.0);

    Pattern named;
    load (named, json { { "name", std::string (100000, 'n') } });
    EXPECT_EQ (named.name.length(), 1024);
}

TEST (HostilePatternDocument, OfNestedClipsLoadsRendersAndCopies)
{
    auto document = parsed (R"({"NoteList": {"Events": [{"enabled": true, "Time": {"length": 1}}]}})");

    for (auto depth = 0; depth < 15; ++depth)
        document = { { "Pattern", { { "Clips", { { { "Clip", document } } } } } } };

    Clip clip;
    load (clip, document);
    EXPECT_EQ (asText (rendered (clip).notes), "36 @0+1");
    EXPECT_EQ (asText (rendered (*clip.clone()).notes), "36 @0+1");
}
} // namespace
} // namespace Zn::Sequencer::Modifiers
