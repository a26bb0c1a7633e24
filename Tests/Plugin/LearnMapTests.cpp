#include "Plugin/ProcessorFixture.h"

#include "Foundation/Events/GarbageCollector.h"
#include "Support/Documents.h"
#include "Support/Lateness.h"

#include <gmock/gmock.h>

#include <thread>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using Midi::Learn::Target;
using testing::IsEmpty;
using Zn::Tests::isAtMostOneLate;
using Zn::Tests::text;

const auto cutoff = Target::forParam ("Filter-Cutoff");
const auto transpose = Target::forParam ("Transpose");

Target slot (int index)
{
    return Target::forSlot (index);
}

/** A table as "36>slot2 64>Transpose". */
std::string listed (const LearnMap& map)
{
    juce::StringArray texts;

    for (const auto& [target, number] : map.getBindings())
        texts.add (juce::String (number) + ">"
                   + (target.isSlot() ? "slot" + juce::String (target.slot) : target.param));

    return texts.joinIntoString (" ").toStdString();
}

/** The arp is off, so that keys can be read at the output. */
struct LearnMapTest : testing::Test, ProcessorFixture
{
    LearnMapTest() { set ("Arp-Active", "Off"); }

    /** What the host receives for some events, after which the timer ticks. */
    std::string play (const std::string& input)
    {
        const auto numBefore = host.getReceived().size();
        host.send (events (input));
        host.run (512);
        map.update();

        juce::MidiBuffer received;

        for (auto i = numBefore; i < host.getReceived().size(); ++i)
            received.addEvent (host.getReceived()[i].bytes.data(), 3, static_cast<int> (i - numBefore));

        return text (received);
    }

    int pendingSlot() const { return state.liveSlots->pending.load(); }

    LearnMap& map = state.learnMap;
    TestHost host { processor };
    int numChanges = 0;
    Events::Listener listener { map, [this] { ++numChanges; } };
};
} // namespace

TEST_F (LearnMapTest, LearnsTheFirstMessageThatTheTargetCanUse)
{
    map.learn (slot (2));

    for (const auto* useless : { "cc 64 127 @3", "off 36 v9 @3", "on 36 v0 @3", "cc 64 0 @3" })
    {
        play (useless);
        EXPECT_EQ (map.getLearning(), slot (2)) << useless;
    }

    EXPECT_EQ (play ("on 36 @5, on 37 @6"), "on 36 @0, on 37 @1") << "it sounds while it is learned";
    EXPECT_EQ (listed (map), "36>slot2");
    EXPECT_EQ (map.getLearning(), std::nullopt);

    map.learn (transpose);
    play ("on 40 @0");
    EXPECT_EQ (map.getLearning(), transpose);
    play ("cc 64 127 @0");
    EXPECT_EQ (listed (map), "36>slot2 64>Transpose");
}

TEST_F (LearnMapTest, GivesEachTargetOneMessageAndEachKeyOneSlot)
{
    const std::vector<std::pair<std::function<void()>, std::string>> rows {
        { [&] {
             map.bind ({ slot (0), 36 });
         },
          "36>slot0" },
        { [&] {
             map.bind ({ slot (1), 37 });
         },
          "36>slot0 37>slot1" },
        { [&] {
             map.bind ({ slot (0), 38 });
         },
          "37>slot1 38>slot0" },
        { [&] {
             map.bind ({ slot (2), 37 });
         },
          "38>slot0 37>slot2" },
        { [&] {
             map.bind ({ cutoff, 64 });
         },
          "38>slot0 37>slot2 64>Filter-Cutoff" },
        { [&] {
             map.bind ({ transpose, 64 });
         },
          "38>slot0 37>slot2 64>Filter-Cutoff 64>Transpose" },
        { [&] { map.clear (cutoff); }, "38>slot0 37>slot2 64>Transpose" },
        { [&] { map.bindKeySwitches (124); },
          "64>Transpose 120>slot0 121>slot1 122>slot2 123>slot3 124>slot4 125>slot5 126>slot6 127>slot7" },
        { [&] { map.clearAll(); }, "" },
    };

    for (auto expectedChanges = 0; const auto& [change, expected] : rows)
    {
        change();
        EXPECT_EQ (listed (map), expected);
        EXPECT_EQ (numChanges, ++expectedChanges) << expected;
    }

    for (const auto& impossible : { LearnMap::Binding { slot (8), 36 },
                                    { slot (0), 128 },
                                    { slot (0), -1 },
                                    { Target(), 64 },
                                    { Target::forParam ("Cutoff"), 64 } })
        EXPECT_FALSE (map.bind (impossible));

    map.clear (slot (0));
    map.learn (Target::forParam ("Cutoff"));
    EXPECT_EQ (map.getLearning(), std::nullopt);
    EXPECT_EQ (numChanges, static_cast<int> (rows.size())) << "nothing has changed";
}

TEST_F (LearnMapTest, StopsWaitingWhenCancelledAndWaitsForOneThingAtATime)
{
    map.learn (slot (1));
    map.cancel();
    play ("on 36 @0, off 36 @9");
    EXPECT_EQ (listed (map), "");

    map.learn (slot (1));
    map.learn (slot (3));
    play ("on 36 @0, off 36 @9");
    EXPECT_EQ (listed (map), "36>slot3");

    map.learn (slot (4));
    host.send (events ("on 40 @0"));
    host.run (512);
    map.cancel(); // the message is captured, and the timer has not come yet
    map.update();
    EXPECT_EQ (listed (map), "36>slot3");

    map.learn (slot (5));
    const Events::Listener next { map, [this] {
                                     if (! map.getLearning() && map.getBindings().size() == 2)
                                         map.learn (slot (6)); // whoever was told begins the next wait
                                 } };
    play ("on 41 @0");
    play ("on 42 @0");
    EXPECT_EQ (listed (map), "36>slot3 41>slot5 42>slot6");
}

TEST_F (LearnMapTest, ConsumesAKeyAndItsLift)
{
    map.bindKeySwitches (36);
    EXPECT_EQ (play ("on 35 @0, on 38 @1, off 38 @2, on 43 v0 @3, on 44 @4"), "on 35 @0, on 44 @1");
    EXPECT_EQ (state.slotParam.getInt(), 2);

    map.clear (slot (2));
    EXPECT_EQ (play ("on 38 @1, on 37 v0 @2"), "on 38 @0");
}

TEST_F (LearnMapTest, LetsGoOfWhatWasDownWhenTheTableChanged)
{
    // Each row: what is played, then the change, then what is played and what the host receives of it.
    struct Row
    {
        std::string before;
        std::function<void()> change;
        std::string after, received;
    };

    const auto sustained = "on 60 @0, cc 64 127 @1, off 60 @2";

    const Row rows[] {
        { "on 36 @0",
          [&] { map.bindKeySwitches (36); },
          "on 36 @0, off 36 @1, on 36 @2, off 36 @3",
          "off 36 v100 @0" },
        { "on 36 @0", [&] { map.clearAll(); }, "off 36 @0", "" },
        { sustained,
          [&] {
              map.bind ({ cutoff, 64 });
          },
          "cc 64 100 @0, cc 64 0 @1",
          "off 60 v100 @0" },
        { "cc 64 127 @0",
          [&] { map.clearAll(); },
          "cc 64 0 @0, on 61 @1, off 61 @2",
          "on 61 @0, off 61 v100 @1" },
    };

    for (const auto& [before, change, after, received] : rows)
    {
        play (before);
        change();
        EXPECT_EQ (play (after), received) << before;
    }
}

TEST_F (LearnMapTest, MovesAParameterAtItsSampleAndTellsTheHostLater)
{
    struct HostSide : juce::AudioProcessorListener
    {
        void audioProcessorParameterChanged (juce::AudioProcessor*, int, float value) override
        {
            told.push_back (value);
        }
        void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails&) override {}

        std::vector<float> told;
    };

    HostSide hostSide;
    map.bind ({ transpose, 64 });
    map.bind ({ cutoff, 64 });
    processor.addListener (&hostSide);

    host.send (events ("on 60 @0, cc 64 127 @100, on 62 @100, cc 64 0 @511"));
    host.run (512);
    EXPECT_EQ (host.noteOns(), "60@0 72@100 74@100 48@511 50@511");
    EXPECT_FLOAT_EQ (state.params.sound.synth.filter.cutoff.get(), 10.0f);
    EXPECT_THAT (hostSide.told, IsEmpty()) << "the audio thread tells nobody";

    map.update();
    map.update();
    EXPECT_THAT (hostSide.told, testing::ElementsAre (0.0f, 0.0f)) << "each parameter once";

    host.send (events ("cc 64 127 @0"));
    host.run (512);
    map.clearAll();
    map.update();
    EXPECT_EQ (hostSide.told.size(), 4u) << "also of what is not learned any more";
    processor.removeListener (&hostSide);
}

TEST_F (LearnMapTest, SwitchesAtTheKeysSampleOrTheQuantumAfterItHoweverTheBlockIsCut)
{
    struct Row
    {
        juce::String quantize;
        bool waits;
        int switchSample; // at which the sounding step of the first slot ends
    };

    constexpr auto keySample = 10007;
    const Row rows[] { { "1/16", false, keySample },
                       { "1/8", true, quarter / 2 },
                       { "4/4", true, 4 * quarter } };

    for (const auto& [quantize, waits, switchSample] : rows)
    {
        std::vector<int> endsOfWhole;

        for (const auto blockSize : { 512, 64, 1000 })
        {
            ProcessorFixture fixture;
            auto& [processorOfRow, stateOfRow] = fixture;
            fixture.set ("Quantize", quantize);
            fixture.drawSteps (0, 1, 0, 1.0);
            fixture.drawSteps (1, 16, 1);
            stateOfRow.liveSlots->enable = waits;
            stateOfRow.learnMap.bind ({ slot (1), 36 });

            TestHost cutHost (processorOfRow, 48000.0, blockSize);
            cutHost.send (events ("on 60 @0, on 36 @10007, off 36 @10400"));
            cutHost.run (5 * quarter);

            const auto starts = startsOf (cutHost, 72);
            ASSERT_THAT (starts, testing::Not (IsEmpty()));
            const auto late = (switchSample + 5999) / 6000 * 6000;
            EXPECT_THAT (starts.front(), testing::AllOf (testing::Ge (late), testing::Le (late + 1)))
                << quantize;
            EXPECT_THAT (startsOf (cutHost, 36), IsEmpty());

            std::vector<int> ends;

            for (const auto& message : cutHost.getReceived())
                if (message.isNoteOff())
                    ends.push_back (static_cast<int> (message.sample));

            EXPECT_EQ (ends.front(), switchSample) << quantize << " " << blockSize;

            if (endsOfWhole.empty())
                endsOfWhole = ends;

            EXPECT_THAT (ends, testing::Pointwise (isAtMostOneLate(), endsOfWhole)) << blockSize;
        }
    }
}

TEST_F (LearnMapTest, ComesBackWithTheHostsProject)
{
    using Tests::parsed;
    map.bind ({ slot (7), 0 });
    map.bind ({ cutoff, 64 });
    const auto document = Tests::saved (map, ReflectorContext::forHostChunk());
    EXPECT_EQ (document, parsed (R"([ { "type": "Slot", "note": 0, "slot": 7 },
                                      { "type": "CC", "cc": 64, "param": "Filter-Cutoff" } ])"));

    numChanges = 0;
    Tests::load (map, document);
    EXPECT_EQ (numChanges, 0) << "an undo of something else leaves the table alone";
    map.clearAll();
    Tests::load (map, document);
    EXPECT_EQ (listed (map), "0>slot7 64>Filter-Cutoff");

    const std::pair<const char*, const char*> rows[] {
        { R"([ {"type": "Slot", "note": 1, "slot": 0}, {"type": "Slot", "note": 2, "slot": 0},
               {"type": "Slot", "note": 2, "slot": 1} ])",
          "2>slot1" },
        { R"([ {"type": "Slot", "note": 128, "slot": 0}, {"type": "Slot", "note": 4294967299, "slot": 0},
               {"type": "Slot", "note": -1, "slot": 0}, {"type": "Slot", "note": 3, "slot": 8},
               {"type": "Slot", "note": "x", "slot": 0}, {"type": "Slot", "note": 3, "slot": "99999999999999999999"},
               {"type": "Slot", "note": 3}, {"type": "Slot", "slot": 3}, {"type": "Slot", "note": [], "slot": {}},
               {"type": "CC", "cc": 64, "param": "Nonsense"}, {"type": "CC", "cc": 64}, {"type": "CC", "cc": 64, "param": 3},
               {"type": "Note", "note": 3, "slot": 3}, {"type": 3}, {}, null, 3, "Slot", [[]],
               {"type": "Slot", "note": 5, "slot": 5} ])",
          "5>slot5" },
        { R"({ "0": {"type": "CC", "cc": 64, "param": "Transpose"} })", "64>Transpose" },
        { R"("Slot")", "" },
        { "null", "" },
    };

    for (const auto& [hostile, expected] : rows)
    {
        Tests::load (map, parsed (hostile));
        EXPECT_EQ (listed (map), expected) << hostile;
    }

    auto tooLong = nlohmann::json::array();

    for (auto i = 0; i < 1000; ++i)
        tooLong.push_back ({ { "type", "Slot" }, { "note", i < 128 ? 9 : 10 }, { "slot", 0 } });

    Tests::load (map, tooLong);
    EXPECT_EQ (listed (map), "9>slot0") << "what stands behind the 128th entry is not read";
}

TEST_F (LearnMapTest, ChangesWhileAudioRuns)
{
    std::atomic<bool> isDone { false };
    host.nextBlockSize = [] { return 64; };

    std::jthread audio ([&] {
        while (! isDone)
        {
            host.send (events ("on 40 @0, off 40 @9, on 36 @10, cc 64 127 @20, off 36 @30, cc 64 0 @40"));
            host.run (128);
        }
    });

    for (auto i = 0; i < 100; ++i)
    {
        map.bindKeySwitches (30 + i % 9);
        map.bind ({ i % 2 == 0 ? cutoff : transpose, 64 });
        map.learn (slot (i % 8));
        map.update();
        Events::GarbageCollector::getInstance().collectNow();
        juce::Thread::sleep (i % 10 == 0 ? 1 : 0);
        map.update();

        if (i % 5 == 0)
            map.clearAll();
    }

    isDone = true;
    audio.join();
    map.cancel();
    map.bindKeySwitches (36);
    state.liveSlots->pending = 7;
    play ("on 39 @0");
    EXPECT_EQ (state.slotParam.getInt(), 3);
}
} // namespace Zn::Audio::Plugins::Vornel
