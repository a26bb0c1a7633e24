#include "Plugin/Vornel/State.h"

#include "Foundation/Events/SharedTimer.h"
#include "Foundation/Events/ValueListener.h"
#include "Foundation/Singleton.h"
#include "Plugin/RandomState.h"
#include "Plugin/Vornel/Processor.h"
#include "Sequencer/Modifiers/NumParam.h"
#include "Support/Documents.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using nlohmann::json;
using Tests::asText;
using Tests::parsed;
using Tests::saved;

/** Loads what has no header of its own as a document of this version. */
void load (State& state, json document, ReflectorContext context = ReflectorContext::forPresetFile())
{
    if (document.is_object() && ! document.empty())
        document.emplace ("version", "0.8.0");

    Tests::load (state, std::move (document), context);
}

struct StateTest : ::testing::Test
{
    const Singleton::UserToken singletons;
    State state;
    int rebuilds = 0, edits = 0;
    Events::Listener listener { state.patterns.getAudioBroadcaster(), [this] { ++rebuilds; } };
    Events::Listener editListener { state.projectChanged, [this] { ++edits; } };

    std::string notesOf (std::size_t slot) const
    {
        return asText (state.patterns.getPatternData()->slots[slot].events.notes);
    }
};
} // namespace

TEST_F (StateTest, WritesWhatOtherProgramsOfItsFormatRead)
{
    auto document = saved (state);
    auto& synth = document["Params"]["Synth"]["Synth"];

    EXPECT_EQ (synth["Oscillators"]["OSC 2"], parsed (R"({
        "Enable": "On", "Octave": "0", "Tune": "0", "Type": "ARP", "Volume": "-15.00 dB",
        "Unison": { "Unison": "1", "UnisonDepth": "0.50", "UnisonSpread": "0.50" }
    })"));
    synth.erase ("Oscillators");
    EXPECT_EQ (synth, parsed (R"({
        "ADSR": { "Attack": "0.00", "Decay": "1.00", "Sustain": "1.00", "Release": "0.01" },
        "Delay": { "Analog": "0.50", "Feedback": "0.10", "Mix": "0.00", "Mode": "Sync", "Time": "0.10",
                   "TimeSync": "1/4" },
        "Filter": { "Cutoff": "8000.00", "Enable": "On", "KeyTracking": "1.00", "Resonance": "1.00" },
        "Sub": { "SubOctave": "-2", "SubVolume": "0.00 dB" }
    })"));
    document["Params"]["Synth"].erase ("Synth");

    EXPECT_EQ (document["Params"], parsed (R"({
        "Quantize": "1/4", "Retrigger": "Off", "Swing": "0%", "SwingRef": "1/4", "Transpose": "0",
        "Synth": { "Master": "0.00 dB", "SynthEnable": "On", "Unison": "1", "UnisonAmount": "0.50" }
    })"));
    EXPECT_EQ (document["Patterns"]["Sequencer"], parsed (R"({
        "Transport": { "BPM": { "value": "100" }, "Swing": { "Value": "0%" }, "SwingRef": { "Value": "1/4" } }
    })"));
    EXPECT_EQ (document["Patterns"]["Patterns"].size(), 8u);
    EXPECT_EQ (document["Patterns"].size(), 2u);
    EXPECT_EQ (saved (state, ReflectorContext::forHostChunk())["Patterns"]["Sequencer"].size(), 3u);

    state.savesParams = false;
    EXPECT_EQ (saved (state)["Params"], json());
    EXPECT_TRUE (saved (state, ReflectorContext::forUndo())["Params"].is_object());
}

TEST_F (StateTest, KeepsWhatADocumentOmits)
{
    juce::Random random (1);
    randomise (state, random);
    const auto before = saved (state, ReflectorContext::forHostChunk());
    const auto performance = [this] {
        return std::tuple { state.params.octave.get(), state.params.key.get(), state.params.arpActive.get() };
    };
    const auto played = performance();

    for (const auto* text : { "{}",
                              "[]",
                              R"({"Params": null, "Patterns": null})",
                              R"({"Params": {"Synth": []}, "Patterns": {"Sequencer": {"Transport": {}}}})",
                              R"({"Patterns": {"Time": {"Bars": []}, "fitLoop": true, "unknown": 1}})" })
    {
        load (state, parsed (text), ReflectorContext::forHostChunk());
        EXPECT_EQ (saved (state, ReflectorContext::forHostChunk()), before) << text;
    }

    const auto fresh = std::make_unique<State>();
    load (state, saved (*fresh));
    EXPECT_NE (saved (state), before);
    EXPECT_EQ (performance(), played) << "a preset must not touch what is played";

    load (state, parsed (R"({"Params": {"Key": "E", "Octave": "3", "ArpActive": "On"}})"));
    EXPECT_EQ (performance(), played);
}

TEST_F (StateTest, RebuildsOnceForALoadWithTheSwingOfItsPatterns)
{
    load (state, parsed (R"({
        "Params": { "Swing": "-160%", "SwingRef": "1/8" },
        "Patterns": {
            "Patterns": [ { "Time": { "Bars": [ { "num": 2, "denum": 4 } ] },
                            "Pattern": { "Steps": [
                                { "Time": { "start": 0.25, "length": 0.25 }, "Event": { "noteNum": 60 }, "enabled": true } ] } } ],
            "Sequencer": { "Transport": { "Swing": { "Value": "40%" }, "SwingRef": { "Value": "1/4" } } }
        }
    })"));

    EXPECT_EQ (state.params.swing->get(), 40);
    EXPECT_EQ (state.params.swingRef.get(), 1);
    EXPECT_EQ (notesOf (0), "60 @0.6+0.4");
    EXPECT_EQ (rebuilds, 1);
}

TEST_F (StateTest, PlaysWithTheSwingThatWasReadWhenALoadFailsMidway)
{
    state.patterns.getSlots()[0].pattern.steps = { Tests::note (60, 0.125, 0.125) };

    EXPECT_THROW (load (state, parsed (R"({"Params": {"Swing": "40%"},
                                           "Patterns": {"Patterns": [{"Multiply": "perhaps"}]}})")),
                  std::invalid_argument);
    EXPECT_EQ (notesOf (0), "60 @0.6+0.4");
    EXPECT_EQ (rebuilds, 1);
}

/** Puts something else in place of a leaf, or of what lies around it. */
json damaged (const json& document, juce::Random& random)
{
    static const auto strange = parsed (R"([null, true, -1, 0, 1, 300, 2147483648, -9223372036854775808,
        18446744073709551615, 0.5, 1e300, -1e-300, "", "x", "nan", "-inf", "1e400", "3", "Off", "1/4",
        [], {}, [null], [[]], {"Bars": 3}, [{"num": 1e9}], {"Value": "x"}, {"value": null}])");

    auto result = document;
    const auto leaves = document.flatten();
    auto place = json::json_pointer (
        std::next (leaves.begin(), random.nextInt (static_cast<int> (leaves.size()))).key());

    while (! place.empty() && random.nextInt (3) == 0)
        place = place.parent_pointer();

    result[place] = strange[static_cast<std::size_t> (random.nextInt (static_cast<int> (strange.size())))];
    return result;
}

TEST_F (StateTest, MakesSenseOfWhateverIsInADocument)
{
    const auto context = ReflectorContext::forPresetFile();
    juce::Random random (1);
    randomise (state, random);
    const auto intact = saved (state, context);

    for (auto i = 0; i < 1000; ++i)
    {
        const auto document = damaged (damaged (intact, random), random);

        try
        {
            load (state, document, context);
        }
        catch (const std::logic_error&) // text where a number belongs
        {}

        State other;
        const auto understood = saved (state, context);
        load (other, understood, context);
        ASSERT_EQ (saved (other, context), understood) << document.dump();

        for (const auto& slot : state.patterns.getPatternData()->slots)
            ASSERT_TRUE (slot.playLength >= 0.0 && slot.playLength <= Sequencer::longestTime)
                << document.dump();
    }
}

TEST_F (StateTest, LaysOutAndPublishesWhatTheEditorChanges)
{
    auto& slot = state.patterns.getSlots()[2];
    auto grid = state.gridOf (2);
    Sequencer::Modifiers::NumParam num (slot.time, [this] { state.patterns.rebuild(); });
    slot.multiply = true;

    EXPECT_EQ (grid.getDefault(), grid.getNormalised());
    grid.setInt (8);
    num.setInt (1);
    EXPECT_EQ (state.patterns.getPatternData()->slots[2].playLength, 8.0);
    EXPECT_EQ (rebuilds, 2);

    grid.setInt (8);
    grid.setInt (1000);
    EXPECT_EQ (slot.pattern.grid, 128);
    EXPECT_EQ (rebuilds, 3);
}

TEST_F (StateTest, AsksForASlotAndShowsItUntilItIsTaken)
{
    state.slotParam.setInt (9);
    EXPECT_EQ (state.liveSlots->pending.load(), 7);
    EXPECT_EQ (state.slotParam.getInt(), 7);

    state.liveSlots->pending = -1;
    state.liveSlots->index = 3;
    EXPECT_EQ (state.slotParam.getInt(), 3);

    state.slotParam.setInt (3);
    EXPECT_EQ (state.liveSlots->pending.load(), -1) << "nothing to ask for";
}

TEST_F (StateTest, IsMarkedAsEditedByWhateverAPresetWouldLose)
{
    struct Row
    {
        const char* name;
        std::function<void()> act;
        bool marksPatterns, marksSound, marksProject;
    };

    auto& params = state.params;
    const auto chunk = saved (state, ReflectorContext::forHostChunk());
    const auto sound = saved (state.synthPreset);
    const auto tick = [] { Events::SharedTimer::getInstance().timerCallback(); };
    const auto change = [] (auto& holder) {
        auto& parameter = holder.getParameter();
        parameter.setValueNotifyingHost (parameter.getValue() < 0.5f ? 0.75f : 0.25f);
    };

    const Row rows[] = {
        { "a drawn pattern", [&] { state.patterns.rebuild(); }, true, false, true },
        { "a parameter of the arpeggiator", [&] { change (params.transpose); }, true, false, false },
        { "swing, which the patterns follow", [&] { change (params.swing); }, true, false, false },
        { "a parameter of the sound", [&] { change (params.sound.master); }, true, true, false },
        { "one that the host does not know",
          [&] { change (params.sound.synth.oscillators.oscillators[1].type); },
          true,
          true,
          true },
        { "a performance control", [&] { change (params.key); }, false, false, false },
        { "the slot", [&] { state.slotParam.setInt (4); }, false, false, true },
        { "the octaves", [&] { state.lowestOctave.setInt (3); }, false, false, true },
        { "the grid's hold", [&] { state.snapParam.setBool (! state.snap); }, false, false, true },
        { "a project",
          [&] {
              load (state, chunk, ReflectorContext::forHostChunk());
              state.forgetChanges();
          },
          false,
          false,
          false },
        { "a sound preset", [&] { state.synthPreset.applyDocument (sound, {}); }, true, false, true },
    };

    ManagedParameters managed;
    HostParamList host (managed);
    juce::AudioProcessorGraph processor; // any, to list parameters
    params.forwardTo (host);
    host.addTo (processor);
    state.startFollowing();
    const juce::ScopeGuard endsBeforeTheHost { [this] { state.stopFollowing(); } };

    for (const auto& row : rows)
    {
        juce::Random random (3);
        randomise (params, random);
        state.forgetChanges();
        state.followChanges();
        state.setDirty (false);
        state.synthPreset.setDirty (false);
        edits = 0;

        row.act();
        tick();
        EXPECT_EQ (state.isDirty(), row.marksPatterns) << row.name;
        EXPECT_EQ (state.synthPreset.isDirty(), row.marksSound) << row.name;
        EXPECT_EQ (edits > 0, row.marksProject) << row.name;
    }
}

TEST_F (StateTest, TellsWhoShowsTheBrushWhenItIsAnother)
{
    auto shown = Brush::pencil;
    const Events::ValueListener<Brush> view (state.brush, [&shown] (Brush brush) { shown = brush; });

    state.brushParam.setInt (static_cast<int> (Brush::velocity));
    EXPECT_EQ (shown, Brush::velocity);

    state.brushParam.setInt (99);
    EXPECT_EQ (shown, Brush::chance);
}

TEST (Processor, MayGoOnAnotherThreadWhileItsParametersAreFollowed)
{
    const Singleton::UserToken timerStays;

    for (auto i = 0; i < 20; ++i)
    {
        auto processor = std::make_unique<Processor> (StartUp::empty);
        std::atomic<bool> isGone { false };

        std::thread host ([&] {
            processor->getState().params.swing->setValueNotifyingHost (0.75f);
            processor.reset();
            isGone = true;
        });

        while (! isGone)
            Events::SharedTimer::getInstance().timerCallback();

        host.join();
    }
}

TEST (Processor, ComesAndGoesInCrowdsOnManyThreads)
{
    const Singleton::UserToken timerStays;
    std::atomic<int> numEnded { 0 }, numSilent { 0 };
    std::vector<std::thread> hosts;

    for (auto seed = 0; seed < 4; ++seed)
        hosts.emplace_back ([&, seed] {
            std::vector<std::unique_ptr<Processor>> crowd;
            juce::Random random (seed);

            const auto oneLeaves = [&] {
                crowd.erase (crowd.begin() + random.nextInt (static_cast<int> (crowd.size())));
            };

            for (auto i = 0; i < 16; ++i)
            {
                crowd.push_back (std::make_unique<Processor>());
                juce::AudioBuffer<float> audio (2, 512);
                juce::MidiBuffer midi;
                midi.addEvent (juce::MidiMessage::noteOn (1, 60, juce::uint8 (100)), 0);
                crowd.back()->processBlock (audio, midi);
                numSilent += audio.getMagnitude (0, 512) > 0.0f ? 0 : 1;

                if (random.nextBool())
                    oneLeaves();
            }

            while (! crowd.empty())
                oneLeaves();

            ++numEnded;
        });

    while (numEnded < 4)
        Events::SharedTimer::getInstance().timerCallback();

    for (auto& host : hosts)
        host.join();

    EXPECT_EQ (numSilent, 0);
}
} // namespace Zn::Audio::Plugins::Vornel
