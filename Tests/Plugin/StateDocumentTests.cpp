#include "Plugin/RandomState.h"

#include "Foundation/Singleton.h"
#include "Presets/Reflection/JsonText.h"
#include "Support/Documents.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

#include <string_view>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using nlohmann::json;
using Tests::asText;
using Tests::load;
using Tests::parsed;
using Tests::saved;

constexpr auto presetFile = ReflectorContext::forPresetFile();
constexpr auto hostChunk = ReflectorContext::forHostChunk();
constexpr auto undo = ReflectorContext::forUndo();

struct StateDocument : ::testing::Test
{
    StateDocument()
    {
        state.startFollowing();
        other.startFollowing();
    }

    const Singleton::UserToken singletons;
    State state, other;
    juce::Random random { 1 };
};

/** All that a document says to an ear: the notes of the eight slots as the audio thread plays them. */
std::string notesOf (const State& state)
{
    std::string text;

    for (const auto& slot : state.patterns.getPatternData()->slots)
        text += asText (slot.events) + (slot.playing ? " plays" : "") + (slot.looping ? " loops\n" : "\n");

    return text;
}

std::vector<Sequencer::TimedNote> allSteps (const State& state)
{
    std::vector<Sequencer::TimedNote> all;

    for (const auto& slot : state.patterns.getSlots())
        all.insert (all.end(), slot.pattern.steps.begin(), slot.pattern.steps.end());

    return all;
}

std::vector<float> valuesOf (const ParamList& params)
{
    std::vector<float> values;
    params.forEachParam (
        [&values] (const auto& holder) { values.push_back (holder.getParameter().getValue()); });
    return values;
}

/** What a project keeps and a preset leaves alone. */
json projectPart (State& state)
{
    auto document = saved (state, hostChunk);

    for (const auto* key : { "Params", "name", "id", "dirty", "Synth" })
        document.erase (key);

    document["Patterns"].erase ("Patterns");
    document["Patterns"]["Sequencer"].erase ("Transport");

    const auto& params = state.params;
    document["performance"] = { params.octave.get(), params.key.get(), params.arpActive.get() };
    return document;
}
} // namespace

TEST_F (StateDocument, GivesBackEveryStateThatItWasMadeFrom)
{
    for (auto i = 0; i < 1000; ++i)
    {
        randomise (state, random);
        randomise (other,
                   random); // what is loaded lies over something else, whose chance must not shine through

        for (const auto context : { hostChunk, undo })
        {
            const auto document = saved (state, context);
            load (other, document, context);

            ASSERT_EQ (Json::toText (saved (other, context)), Json::toText (document)) << i;
            ASSERT_EQ (allSteps (other), allSteps (state)) << i;
            ASSERT_EQ (notesOf (other), notesOf (state)) << i;
            ASSERT_EQ (other.player.get(), state.player.get()) << i;
            ASSERT_EQ (other.liveSlots->heard.load(), state.liveSlots->index.load()) << i;
            ASSERT_EQ (other.screen.getSize(), state.screen.getSize()) << i;
        }
    }
}

TEST_F (StateDocument, OfAPresetLeavesAloneWhatIsTheProjects)
{
    for (auto i = 0; i < 500; ++i)
    {
        randomise (state, random);
        randomise (other, random);

        const auto before = projectPart (other);
        const auto document = saved (state, presetFile);
        load (other, document, presetFile);

        ASSERT_EQ (Json::toText (saved (other, presetFile)), Json::toText (document)) << i;
        ASSERT_EQ (allSteps (other), allSteps (state)) << i;
        ASSERT_EQ (projectPart (other), before) << i;

        const auto sound = saved (state.synthPreset, presetFile);
        randomise (other.params.sound, random);
        load (other.synthPreset, sound, presetFile);
        ASSERT_EQ (Json::toText (saved (other.synthPreset, presetFile)), Json::toText (sound)) << i;
    }

    const auto sounds = valuesOf (other.params);
    auto patternsOnly = saved (state, presetFile);
    patternsOnly["Params"] = nullptr;
    patternsOnly["Patterns"].erase ("Sequencer"); // its swing and tempo are parameters
    load (other, patternsOnly, presetFile);
    EXPECT_EQ (valuesOf (other.params), sounds);
    EXPECT_EQ (allSteps (other), allSteps (state));
}

TEST_F (StateDocument, KeepsExactValuesWhereTheTextIsTheSame)
{
    for (auto i = 0; i < 200; ++i)
    {
        randomise (state, random);
        const auto exact = valuesOf (state.params);
        const auto tempo = state.bpm.getFloat();
        const auto snapshot = saved (state, undo);

        // One thing changes and is undone; its own value may be coarser then, as the text was.
        state.params.transpose->setValueNotifyingHost (random.nextFloat());
        load (state, snapshot, undo);

        auto values = valuesOf (state.params);
        ASSERT_EQ (values, exact) << i;
        ASSERT_EQ (state.bpm.getFloat(), tempo) << i;
    }
}

TEST_F (StateDocument, HasExactlyTheKeysOfItsFormat)
{
    auto& slot = state.patterns.getSlots().front();
    slot.pattern.steps = { Tests::note (60, 0.25, 0.5) };
    state.setName ("Some");

    const auto common =
        parsed (R"({ "version": "0.8.0", "product": "Vornel", "name": "Some", "id": "", "dirty": false,
        "Patterns": {
            "Patterns": {
                "Multiply": false, "Time": { "Bars": [ { "num": 4, "denum": 4 } ] },
                "Pattern": {
                    "Duration": { "Time": { "Bars": [ { "num": 2, "denum": 4 } ] }, "duration": 4.0, "mode": 1 },
                    "Steps": [ { "Event": { "channel": 1, "noteNum": 60, "velocity": 0.800000011920929 },
                                 "Time": { "start": 0.25, "length": 0.5 }, "enabled": true } ],
                    "grid": 16, "length": 0.98, "name": "" } },
            "Sequencer": { "Transport": { "BPM": { "value": "100" }, "Swing": { "Value": "0%" },
                                          "SwingRef": { "Value": "1/4" } } } } })");

    const auto projectOnly = parsed (R"({
        "Screen": { "Dimensions": { "width": -1, "height": -1 } },
        "MidiPlayer": { "Resource": { "name": "", "type": "None", "data": "" }, "playing": true, "active": false },
        "Octave": { "Min": 0, "Max": 11 }, "UI": { "snap": true }, "MidiLearn": null })");

    const auto withoutSound = [this] (ReflectorContext context) {
        state.patterns.rebuild();
        state.setDirty (false);

        auto document = saved (state, context);
        EXPECT_EQ (document["Params"].size(), 6u);
        EXPECT_EQ (document["Patterns"]["Patterns"].size(), 8u);
        document.erase ("Params");
        document["Patterns"]["Patterns"] = json (document["Patterns"]["Patterns"][0]);
        return document;
    };

    EXPECT_EQ (withoutSound (presetFile).dump (1), common.dump (1));

    auto chunk = withoutSound (hostChunk);
    EXPECT_EQ (chunk["Synth"], saved (state.synthPreset, hostChunk));
    EXPECT_EQ (chunk["Synth"]["product"], "Vornel Sounds");
    EXPECT_EQ (chunk["Synth"].size(), 6u);
    EXPECT_EQ (chunk["Slots"]["Slot"], 0);
    EXPECT_EQ (chunk["Slots"]["Slots"].size(), 8u);
    EXPECT_EQ (
        chunk["Slots"]["Slots"][7],
        parsed (
            R"({ "Clip": { "Time": { "start": 0.0, "length": 0.0 }, "name": "" }, "playing": true, "looping": true })"));

    auto expected = common;
    expected.update (projectOnly);
    auto& sequencer = expected["Patterns"]["Sequencer"];
    sequencer["Live"] = { { "enable", true }, { "quantize", 1.0 } };
    sequencer["active"] = false;
    chunk.erase ("Synth");
    chunk.erase ("Slots");
    EXPECT_EQ (chunk.dump (1), expected.dump (1));
}

namespace
{
/** Whether a change in one place of a document may show in this one: what is said twice, and what depends on it. */
bool isToldElsewhere (std::string_view key)
{
    const auto contains = [key] (std::string_view part) { return key.find (part) != std::string_view::npos; };
    return contains ("/Swing") || contains ("Resource/data") || contains ("/Play/")
           || contains ("Duration/duration")
           || (contains ("Synth/") && ! contains ("name") && ! contains ("id"));
}

/** Of several things alike the first stands for the others. */
bool isLikeTheFirst (const std::string& path)
{
    for (const std::string list : { "/Patterns/Patterns/", "/Slots/Slots/", "/OSC " })
        if (const auto found = path.find (list);
            found != std::string::npos && path[found + list.size()] != '0')
            return true;

    return false;
}

std::vector<std::string> placesIn (const json& node, const std::string& path = {})
{
    std::vector<std::string> places;

    if (isLikeTheFirst (path))
        return places;

    if (! path.empty())
        places.push_back (path);

    if (node.is_structured())
        for (const auto& [key, child] : node.items())
            for (auto& place : placesIn (child, path + "/" + key))
                places.push_back (std::move (place));

    return places;
}
} // namespace

TEST_F (StateDocument, LosesNothingElseWhereOnePlaceHasAnotherType)
{
    randomise (state, random);

    for (std::size_t i = 2; i < Sequencer::numSlots; ++i)
        state.patterns.getSlots()[i].reset();

    state.patterns.rebuild();
    auto intact = saved (state, hostChunk);
    load (state, intact, hostChunk);
    intact = saved (state, hostChunk);
    const auto leaves = intact.flatten();

    const auto strange =
        parsed (R"([null, "Off", "x", 3, -0.5, [], [1, "x", {}], {}, {"x": {"x": 1}}, true])");

    for (const auto& place : placesIn (intact))
        for (const auto& value : strange)
        {
            auto document = intact;
            document[json::json_pointer (place)] = value;
            const auto hint = place + " = " + value.dump();

            try
            {
                load (state, document, hostChunk);
            }
            catch (const std::logic_error&) // text where a number belongs
            {}

            const auto understood = saved (state, hostChunk);
            ASSERT_EQ (understood["Patterns"]["Patterns"].size(), 8u) << hint;
            ASSERT_EQ (understood["Slots"]["Slots"].size(), 8u) << hint;

            const auto found = understood.flatten();

            for (const auto& [key, leaf] : leaves.items())
            {
                if (std::string_view (key).starts_with (place) || isToldElsewhere (key))
                    continue;

                ASSERT_EQ (found.value (key, json ("missing")), leaf) << key << " after " << hint;
            }

            load (other, understood, hostChunk);
            ASSERT_EQ (saved (other, hostChunk), understood) << hint;

            load (state, intact, hostChunk);
            ASSERT_EQ (saved (state, hostChunk), intact) << hint;
        }
}

TEST_F (StateDocument, TakesNumbersFromBeyondAsFarAsTheyMakeSense)
{
    struct Row
    {
        const char *place, *value, *expected;
    };

    const Row rows[] = {
        { "/Patterns/Patterns/0/Pattern/grid", "0", "1" },
        { "/Patterns/Patterns/0/Pattern/Steps/0/Event/velocity", R"("nan")", "0.0" },
        { "/Patterns/Patterns/0/Pattern/Steps/0/Play",
          R"({"chance": 7, "spreadLow": 1, "spreadHigh": -9})",
          R"({"chance": 1.0, "spreadLow": -1.0, "spreadHigh": 1.0})" },
        { "/Params/Transpose", R"("nan")", R"("0")" },
        { "/Synth/Params/Synth/Filter/Cutoff", R"("1e400")", R"("10.00")" },
        { "/Slots/Slot", "-3", "0" },
        { "/Slots/Slot", "1e9", "7" },
        { "/MidiPlayer/Resource/type", R"("Cloud")", R"("None")" },
    };

    state.patterns.getSlots()[0].pattern.steps = { Tests::note (60, 0.0, 0.5) };
    state.patterns.rebuild();
    const auto intact = saved (state, hostChunk);

    for (const auto& row : rows)
    {
        const json::json_pointer place (row.place);
        auto document = intact;
        document[place] = parsed (row.value);

        load (state, document, hostChunk);
        EXPECT_EQ (saved (state, hostChunk)[place], parsed (row.expected)) << row.place << " = " << row.value;
        load (state, intact, hostChunk);
    }
}

TEST_F (StateDocument, OfAnOlderVersionChangesNothing)
{
    auto document = saved (state, presetFile);
    randomise (state, random);
    const auto before = saved (state, presetFile);

    for (const auto* version : { "0.5.2", "", "new" })
    {
        document["version"] = version;
        load (state, document, presetFile);
        EXPECT_EQ (saved (state, presetFile), before) << version;
    }

    document["version"] = "99.0.0";
    load (state, document, presetFile);
    EXPECT_EQ (saved (state, presetFile)["Patterns"], document["Patterns"]);
}
} // namespace Zn::Audio::Plugins::Vornel
