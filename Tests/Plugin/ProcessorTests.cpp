#include "Plugin/ProcessorFixture.h"

#include <gmock/gmock.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int sixteenth = quarter / 4;

std::vector<juce::String> hostIdentifiers (const juce::AudioProcessor& processor)
{
    std::vector<juce::String> identifiers;

    for (auto* parameter : processor.getParameters())
        identifiers.push_back (
            dynamic_cast<juce::HostedAudioProcessorParameter&> (*parameter).getParameterID());

    return identifiers;
}

std::vector<Tests::Received> ofNote (const std::vector<Tests::Received>& all, int note)
{
    auto selected = all;
    std::erase_if (selected, [note] (const auto& message) { return message.note() != note; });
    return selected;
}
} // namespace

TEST (Processor, ShowsTheHostItsParametersInTheOrderThatProjectsReferTo)
{
    ProcessorFixture f;
    EXPECT_THAT (hostIdentifiers (f.processor),
                 ElementsAre ("Transpose",
                              "Octave",
                              "Key",
                              "Quantize",
                              "Retrigger",
                              "Swing",
                              "Swing-Ref",
                              "Enable-Synth",
                              "Synth-Volume",
                              "Unison-Voice",
                              "Unison-Amount",
                              "OSC-0-Enable",
                              "OSC-0-Volume",
                              "OSC-0-Tune",
                              "OSC-1-Enable",
                              "OSC-1-Volume",
                              "OSC-1-Tune",
                              "OSC-2-Enable",
                              "OSC-2-Volume",
                              "OSC-2-Tune",
                              "OSC-3-Enable",
                              "OSC-3-Volume",
                              "OSC-3-Tune",
                              "Sub-Octave",
                              "Sub-Volume",
                              "ADSR-Attack",
                              "ADSR-Decay",
                              "ADSR-Sustain",
                              "ADSR-Release",
                              "Filter-Enable",
                              "Filter-Cutoff",
                              "Filter-Reso",
                              "Filter-Key-Tracking",
                              "Delay-Analog",
                              "Delay-Time-Free",
                              "Delay-Time-Sync",
                              "Delay-Mode",
                              "Delay-Feedback",
                              "Delay-Mix",
                              "Arp-Active"));
}

TEST (Processor, TakesOnlyStereoOutputWithAnOptionalStereoInput)
{
    using Set = juce::AudioChannelSet;
    ProcessorFixture f;

    const auto accepts = [&f] (std::initializer_list<Set> inputs, std::initializer_list<Set> outputs) {
        juce::AudioProcessor::BusesLayout layout;
        layout.inputBuses = inputs;
        layout.outputBuses = outputs;
        return f.processor.isBusesLayoutSupported (layout);
    };

    EXPECT_TRUE (accepts ({ Set::stereo() }, { Set::stereo() }));
    EXPECT_TRUE (accepts ({}, { Set::stereo() }));
    EXPECT_FALSE (accepts ({ Set::stereo() }, { Set::mono() }));
    EXPECT_FALSE (accepts ({}, { Set::mono() }));
    EXPECT_FALSE (accepts ({ Set::mono() }, { Set::stereo() }));
    EXPECT_FALSE (accepts ({ Set::disabled() }, { Set::stereo() }));
    EXPECT_FALSE (accepts ({ Set::stereo(), Set::stereo() }, { Set::stereo() }));
    EXPECT_FALSE (accepts ({ Set::stereo() }, { Set::stereo(), Set::stereo() }));
    EXPECT_FALSE (accepts ({ Set::stereo() }, {}));
    EXPECT_FALSE (accepts ({ Set::stereo() }, { Set::create5point1() }));
}

TEST (Processor, PlaysTheHeldChordThroughItsPattern)
{
    ProcessorFixture f;
    TestHost host (f.processor);

    host.send (events ("on 60 @0, on 64 @0, on 67 @0"));
    host.run (bar);

    const std::array walk { 60, 64, 67, 72, 76, 72, 67, 64, 67, 72, 76, 79, 84, 76, 72, 67 };
    juce::StringArray expected;

    for (size_t i = 0; i < walk.size(); ++i)
        expected.add (juce::String (walk[i]) + "@" + juce::String (int (i) * sixteenth));

    EXPECT_EQ (host.noteOns(), expected.joinIntoString (" "));
}

TEST (Processor, PlaysTheSameHoweverTheBlocksAreCut)
{
    const auto render = [] (std::function<int()> blockSizes) {
        ProcessorFixture f;
        TestHost host (f.processor, 48000.0, 2048);
        host.nextBlockSize = std::move (blockSizes);
        host.send (
            events ("on 60 @0, on 64 @100, on 67 @20000, off 64 @50001, on 72 @90000, off 60 @120000"));
        host.run (2 * bar);
        return host.getReceived();
    };

    const auto whole = render ([] { return 2048; });
    juce::Random random (5);

    for (const auto& blocks : { std::function<int()> ([] { return 64; }),
                                std::function<int()> ([] { return 1; }),
                                std::function<int()> ([&random] { return 1 + random.nextInt (777); }) })
    {
        const auto cut = render (blocks);

        // What begins between the last sample of a block and the first of the next begins at the latter, so a
        // block's seam may delay an event by one sample, behind another pitch's, and no more.
        for (auto note = 0; note < 128; ++note)
        {
            const auto expected = ofNote (whole, note), actual = ofNote (cut, note);
            ASSERT_EQ (actual.size(), expected.size()) << note;

            for (size_t i = 0; i < actual.size(); ++i)
            {
                EXPECT_EQ (actual[i].bytes, expected[i].bytes) << note;
                EXPECT_THAT (actual[i].sample - expected[i].sample, testing::AnyOf (0, 1)) << note;
            }
        }
    }
}

TEST (Processor, LetsOnlyThreeByteMessagesThroughAndPutsThemOnChannelOne)
{
    ProcessorFixture f;
    f.set ("Arp-Active", "Off");
    TestHost host (f.processor);

    host.send (events (
        "on 60 ch5 @3, cc 1 20 ch5 @3, hex C4 10 @5, hex F0 01 02 F7 @6, cc 64 127 ch3 @7, off 60 ch5 @9",
        "hex E7 00 40 @10, cc 64 0 ch3 @400"));
    host.runBlock (512);

    std::vector<std::pair<std::int64_t, std::array<std::uint8_t, 3>>> got;

    for (const auto& message : host.getReceived())
        got.emplace_back (message.sample, message.bytes);

    using Bytes = std::array<std::uint8_t, 3>;
    EXPECT_THAT (got,
                 ElementsAre (testing::Pair (3, Bytes { 0x90, 60, 100 }),
                              testing::Pair (3, Bytes { 0xB0, 1, 20 }),
                              testing::Pair (10, Bytes { 0xE0, 0, 0x40 }),
                              testing::Pair (400, Bytes { 0x80, 60, 100 })));
}

TEST (Processor, LeavesTheMidiOfAMonoBlockAlone)
{
    ProcessorFixture f;
    juce::AudioBuffer<float> mono (1, 64);
    auto midi = events ("on 60 ch5 @3, hex C4 10 @5");

    f.processor.processBlock (mono, midi);
    EXPECT_EQ (Tests::text (midi), Tests::text (events ("on 60 ch5 @3, hex C4 10 @5")));
}

TEST (Processor, EndsTheArpsNotesWhenItIsSwitchedOffAndTheKeysWhenItIsSwitchedOn)
{
    ProcessorFixture f;
    f.drawQuarters (0, 1, 1.0);
    TestHost host (f.processor);

    host.send (events ("on 60 @0"));
    host.run (1000);
    EXPECT_THAT (host.getSounding(), ElementsAre (72));

    f.set ("Arp-Active", "Off");
    host.run (512);
    EXPECT_THAT (host.getSounding(), IsEmpty());

    host.send (events ("on 64 @0"));
    host.run (512);
    EXPECT_THAT (host.getSounding(), ElementsAre (64));

    f.set ("Arp-Active", "On");
    host.run (512);
    EXPECT_THAT (host.getSounding(), testing::Not (testing::Contains (64)));

    host.send (events ("off 60 @0, off 64 @0"));
    host.run (quarter);
    EXPECT_THAT (host.getSounding(), IsEmpty());
}

TEST (Processor, ChangesTheSlotOnTheGridOfQuantize)
{
    for (const auto& [quantize, expected] :
         { std::pair ("1/4", 2 * quarter), std::pair ("2/4", 2 * quarter), std::pair ("4/4", bar) })
    {
        ProcessorFixture f;
        f.drawQuarters (0, 0);
        f.drawQuarters (1, 1);
        f.set ("Quantize", quantize);
        TestHost host (f.processor);

        host.send (events ("on 60 @0"));
        host.run (quarter + 100);
        f.state.liveSlots->pending.store (1);
        host.run (bar);

        EXPECT_EQ (startsOf (host, 72).front(), expected) << quantize;
        EXPECT_EQ (startsOf (host, 60).back(), expected - quarter) << quantize;
    }
}

TEST (Processor, RestartsThePatternWithEachKeyWhenItRetriggers)
{
    ProcessorFixture f;
    f.drawQuarters (0, 0);
    f.set ("Retrigger", "On");
    TestHost host (f.processor);

    host.send (events ("on 60 @1000, off 60 @30000, on 60 @40000"));
    host.run (bar);
    EXPECT_THAT (startsOf (host, 60), ElementsAre (1000, 25000, 40000, 64000, 88000));
}

TEST (Processor, MovesWhatSoundsWhenTheTranspositionChanges)
{
    ProcessorFixture f;
    f.drawQuarters (0, 0, 1.0);
    TestHost host (f.processor);

    host.send (events ("on 60 @0"));
    host.run (quarter / 2);
    f.set ("Transpose", "5");
    f.set ("Octave", "1");
    host.run (quarter);

    EXPECT_THAT (startsOf (host, 60), ElementsAre (0));
    EXPECT_THAT (startsOf (host, 77), ElementsAre (quarter));
    EXPECT_THAT (host.getSounding(), ElementsAre (77));
}

TEST (Processor, FollowsTheKeyAndTheHostsStopInKeyMode)
{
    ProcessorFixture f;
    f.drawQuarters (0, 0);
    f.set ("Key", "D");
    f.state.keyMode = true;
    TestHost host (f.processor);
    host.playHead.stop();

    host.send (events ("on 60 @0"));
    host.run (bar);
    EXPECT_EQ (host.noteOns(), "");

    host.playHead.play();
    host.run (quarter);
    EXPECT_THAT (startsOf (host, 62), ElementsAre (bar));
}

TEST (Processor, RunsByItselfWhileTheHostStands)
{
    for (const auto hostAnswers : { true, false })
    {
        ProcessorFixture f;
        f.drawQuarters (0, 0);
        TestHost host (f.processor);
        host.playHead.stop();
        host.playHead.answers = hostAnswers;
        f.state.playHead->bpm = 240.0f;

        host.playHead.setTempo (240.0);
        host.send (events ("on 60 @0"));
        host.run (quarter);
        EXPECT_THAT (startsOf (host, 60), ElementsAre (0, quarter / 2)) << hostAnswers;
    }
}

TEST (Processor, PublishesThePitchTableForTheEditor)
{
    ProcessorFixture f;
    TestHost host (f.processor);
    auto reader = f.state.pitchTables.getReader();
    const auto before = reader.getChangeCount();

    host.send (events ("on 60 @0, on 67 @0"));
    host.run (512);

    EXPECT_NE (reader.getChangeCount(), before);
    EXPECT_THAT (reader.newest().pitchesOf (66), ElementsAre (72));
}

TEST (Processor, SwingsThePatternAsItsParametersSay)
{
    ProcessorFixture f;
    f.set ("Swing", "100%");
    f.set ("Swing-Ref", "1/4");
    TestHost host (f.processor);

    host.send (events ("on 60 @0"));
    host.run (bar);

    // The eighth note between two quarters moves to three quarters of the way.
    const auto received = host.getReceived();
    EXPECT_TRUE (std::ranges::any_of (received, [] (const auto& message) {
        return message.isNoteOn() && message.sample == 3 * quarter / 4;
    }));
    EXPECT_FALSE (std::ranges::any_of (received, [] (const auto& message) {
        return message.isNoteOn() && message.sample == quarter / 2;
    }));
}
} // namespace Zn::Audio::Plugins::Vornel
