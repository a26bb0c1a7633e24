#include "Plugin/SoundingStep.h"

#include <gmock/gmock.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

struct Interference
{
    enum Result
    {
        endsAtOnce,   // all that sounded ends with the next block
        endsByItself, // at the latest when its step ends
        startsAgain   // ends with the next block, and sounds otherwise
    };

    const char* name;
    bool keyMode;
    Result result;
    std::function<void (SoundingStep&)> happen;
};

const Interference interferences[] = {
    { "host stops", false, Interference::endsByItself, [] (auto& s) { s.host.playHead.stop(); } },
    { "host stops in key mode", true, Interference::endsAtOnce, [] (auto& s) { s.host.playHead.stop(); } },
    { "host stops as the keys are lifted",
      true,
      Interference::endsAtOnce,
      [] (auto& s) {
          s.letGo();
          s.host.playHead.stop();
      } },
    { "play head vanishes",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.processor.setPlayHead (nullptr); } },
    { "own clock takes over",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.state.playHead->internalClock = true; } },
    { "key mode goes on while the host stands",
      false,
      Interference::endsAtOnce,
      [] (auto& s) {
          s.host.playHead.stop();
          s.state.keyMode = true;
      } },
    { "song jumps ahead by 1000 bars",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.host.playHead.jumpTo (4000.5); } },
    { "song jumps back to the beginning",
      false,
      Interference::startsAgain,
      [] (auto& s) { s.host.playHead.jumpTo (0.0); } },
    { "song jumps before its beginning",
      false,
      Interference::endsAtOnce,
      [] (auto& s) { s.host.playHead.jumpTo (-8.0); } },
    { "song jumps out of sight",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.host.playHead.jumpTo (1.0e9 + 0.5); } },
    { "transposition", false, Interference::endsByItself, [] (auto& s) { s.set ("Transpose", "7"); } },
    { "octave", false, Interference::endsByItself, [] (auto& s) { s.set ("Octave", "-3"); } },
    { "key", true, Interference::endsByItself, [] (auto& s) { s.set ("Key", "B"); } },
    { "octave range",
      false,
      Interference::endsByItself,
      [] (auto& s) {
          s.state.octaveRange.low = 6;
          s.state.octaveRange.high = 7;
      } },
    { "another chord",
      false,
      Interference::endsByItself,
      [] (auto& s) {
          s.host.send (events ("off 60 @0, off 64 @1, off 67 @2, on 50 @3, on 53 @4, off 50 @9"));
      } },
    { "pattern emptied",
      false,
      Interference::endsAtOnce,
      [] (auto& s) { s.edit ([] (auto& step) { step.enabled = false; }); } },
    { "steps made shorter than they have lasted",
      false,
      Interference::endsAtOnce,
      [] (auto& s) { s.edit ([] (auto& step) { step.time.length /= 4.0; }); } },
    { "steps moved to other rows",
      false,
      Interference::startsAgain,
      [] (auto& s) { s.edit ([] (auto& step) { step.event.noteNum += 3; }); } },
    { "chance taken away",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.edit ([] (auto& step) { step.event.chance = 0.0f; }); } },
    { "slot changed on the grid",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.state.liveSlots->pending = 1; } },
    { "slot changed at once",
      false,
      Interference::startsAgain,
      [] (auto& s) {
          s.state.liveSlots->enable = false;
          s.state.liveSlots->pending = 1;
      } },
    { "slot changed to an empty one",
      false,
      Interference::endsAtOnce,
      [] (auto& s) {
          s.state.liveSlots->enable = false;
          s.state.liveSlots->pending = 7;
      } },
    { "swing", false, Interference::endsByItself, [] (auto& s) { s.set ("Swing", "100%"); } },
    { "prepared again",
      false,
      Interference::endsByItself,
      [] (auto& s) { s.processor.prepareToPlay (48000.0, 480); } },
    { "stopped, and prepared for another rate",
      false,
      Interference::endsAtOnce,
      [] (auto& s) {
          s.processor.releaseResources();
          s.processor.prepareToPlay (8000.0, 64);
      } },
};

std::vector<std::array<std::uint8_t, 3>> bytesOf (const std::vector<Tests::Received>& messages)
{
    std::vector<std::array<std::uint8_t, 3>> bytes;
    std::ranges::transform (messages, std::back_inserter (bytes), &Tests::Received::bytes);
    return bytes;
}

std::vector<int> endedUntil (const TestHost& host, std::int64_t sample)
{
    std::vector<int> notes;

    for (const auto& message : host.getReceived())
        if (message.isNoteOff() && message.sample < sample)
            notes.push_back (message.note());

    return notes;
}
} // namespace

TEST (HangingNotes, EndWhateverInterferesWithAStep)
{
    for (const auto& interference : interferences)
    {
        SCOPED_TRACE (interference.name);
        SoundingStep s { interference.keyMode };
        s.sound();

        interference.happen (s);
        s.host.run (480);

        if (interference.result == Interference::endsAtOnce)
        {
            EXPECT_THAT (s.host.getSounding(), IsEmpty());
        }

        if (interference.result != Interference::endsByItself)
        {
            EXPECT_THAT (endedUntil (s.host, s.host.getPosition()),
                         testing::UnorderedElementsAre (60, 64, 67));
        }

        s.host.run (quarter / 2);
        EXPECT_GE (endedUntil (s.host, s.host.getPosition() + 1).size(), 3u);

        s.letGo();
        s.host.send (events ("off 53 @0"));
        s.host.run (2 * bar);
        EXPECT_EQ (s.host.unbalanced(), "");
        EXPECT_EQ (s.host.getAudio().getMagnitude (0, 480), 0.0f) << "the synth's notes end with them";
    }
}

TEST (HangingNotes, EndWithTheBypassAndWithItsEnd)
{
    SoundingStep s { false };
    s.sound();
    s.host.isBypassed = true;
    const auto begun = s.host.getPosition();
    s.host.send (events ("on 62 ch2 @0, cc 1 90 @0, hex E0 00 40 @3, cc 123 0 @4, off 62 ch2 @5"));
    s.host.run (480);
    EXPECT_THAT (bytesOf (receivedFrom (s.host, begun)),
                 ElementsAre (ElementsAre (0x80, 60, 0),
                              ElementsAre (0x80, 64, 0),
                              ElementsAre (0x80, 67, 0),
                              ElementsAre (0x91, 62, 100),
                              ElementsAre (0xB0, 1, 90),
                              ElementsAre (0xE0, 0, 64),
                              ElementsAre (0xB0, 123, 0),
                              ElementsAre (0x81, 62, 0)))
        << "what passes comes behind the ends, and all of it does";

    s.letGo();
    s.host.run (4 * quarter); // two seconds, with nobody holding a key
    s.host.send (events ("cc 64 127 @0, cc 64 64 ch5 @0, cc 64 127 ch9 @0, on 90 ch5 @0, cc 64 63 ch9 @1"));
    s.host.run (quarter);

    s.host.isBypassed = false;
    const auto ended = s.host.getPosition();
    s.host.send (events ("cc 64 0 ch5 @0, off 90 ch5 @0, cc 64 0 @0"));
    s.host.run (bar);
    EXPECT_THAT (s.host.getSounding(), IsEmpty());
    EXPECT_FALSE (s.host.isPedalDown());
    EXPECT_THAT (
        bytesOf (receivedFrom (s.host, ended)),
        ElementsAre (ElementsAre (0x84, 90, 0), ElementsAre (0xB0, 64, 0), ElementsAre (0xB4, 64, 0)));
    EXPECT_THAT (startsOf (s.host, 60), ElementsAre (0));

    s.host.send (events ("on 60 @0"));
    s.host.run (bar);
    EXPECT_THAT (startsOf (s.host, 60), testing::SizeIs (testing::AnyOf (4, 5))) << "it plays again";
}

TEST (HangingNotes, ThatPassedBypassedEndThoughTheHostStopsOrGivesNoSamples)
{
    SoundingStep s { false };
    juce::AudioBuffer<float> nothing (2, 0);
    s.host.isBypassed = true;
    s.host.send (events ("on 72 ch5 @0, on 60 @0"));
    s.host.run (quarter);
    ASSERT_THAT (s.host.getSounding(), ElementsAre (60, 72));

    auto lift = events ("off 72 ch5 @0");
    s.processor.processBlockBypassed (nothing, lift);
    s.host.run (480);
    EXPECT_THAT (s.host.getSounding(), ElementsAre (60)) << "the lift of a block without samples";

    s.processor.releaseResources();
    s.host.run (480);
    EXPECT_THAT (s.host.getSounding(), IsEmpty());
}

TEST (HangingNotes, AreNotBroughtBackByAHostThatStoppedAndLostTheLifts)
{
    struct Row
    {
        const char *arp, *keys;
        bool stops;
    };

    for (const auto role : { Role::instrument, Role::midiEffect })
        for (const auto blockSize : { 32, 500 })
            for (const auto& row : { Row { "On", "on 60 @0, on 64 @0", true },
                                     Row { "On", "cc 64 127 @0, on 60 @1, on 64 @1, off 60 @2", true },
                                     Row { "Off", "on 60 @0, on 64 @0, cc 64 127 @0, off 60 @2", true },
                                     Row { "On", "on 60 @0, on 64 @0", false } })
            {
                SCOPED_TRACE (std::string (row.keys) + " in blocks of " + std::to_string (blockSize));
                SoundingStep s { false, role, blockSize };
                s.set ("Arp-Active", row.arp);
                s.host.send (events (row.keys));
                s.host.run (quarter / 2);
                ASSERT_THAT (s.host.getSounding(), testing::IsSupersetOf ({ 60, 64 }));

                juce::AudioBuffer<float> nothing (2, 0);
                auto late = events ("on 50 @0");
                s.processor.processBlock (nothing, late);

                if (row.stops)
                    s.processor.releaseResources();
                else
                    s.host.send (events ("off 50 @1"));

                s.processor.prepareToPlay (48000.0, blockSize);
                const auto begun = s.host.getPosition();
                s.host.runBlock (blockSize);
                EXPECT_EQ (s.host.getSounding().empty(), row.stops);
                EXPECT_EQ (s.host.getAudio().getMagnitude (0, blockSize), 0.0f);

                s.host.run (bar);
                EXPECT_EQ (startsOf (s.host, 64).back() < begun, row.stops);
                EXPECT_EQ (s.host.unbalanced().find ("struck twice"), std::string::npos);

                s.host.send (events ("on 72 @0, off 60 @9, off 64 @9"));
                s.host.run (quarter + blockSize);
                EXPECT_THAT (s.host.getSounding(), testing::Contains (72));

                s.host.send (events ("off 72 @0, cc 64 0 @0"));
                s.host.run (bar);
                EXPECT_EQ (s.host.unbalanced(), "");
            }
}

TEST (HangingNotes, AreNotMadeByStepsShorterThanASample)
{
    struct Row
    {
        double rate, tempo, gate;
        int numSteps, blockSize;
        bool sounds; // false: too short to be met by a sample for certain
    };

    for (const auto& row : { Row { 8000.0, 999.0, 1.0, 32, 512, true },
                             Row { 8000.0, 999.0, 0.5, 128, 7, true },
                             Row { 8000.0, 999.0, 0.01, 128, 512, false },
                             Row { 8000.0, 999.0, 0.01, 128, 1, false },
                             Row { 8000.0, 10000.0, 1.0, 1024, 64, false },
                             Row { 48000.0, 120.0, 1.0e-6, 16, 512, false },
                             Row { 48000.0, 120.0, 0.0, 16, 512, false } })
    {
        ProcessorFixture f;
        f.drawSteps (0, row.numSteps, 0, row.gate);
        TestHost host (f.processor, row.rate, row.blockSize, row.tempo);

        host.send (events ("on 60 @0"));
        const auto samplesInBar = 4.0 * 60.0 * row.rate / row.tempo;
        host.run (std::llround (3.0 * samplesInBar) - 2);

        if (row.sounds)
        {
            EXPECT_THAT (startsOf (host, 60), testing::SizeIs (3 * row.numSteps))
                << row.rate << " " << row.tempo << " " << row.gate << " in blocks of " << row.blockSize;
        }

        f.drawSteps (0, 0, 0);
        host.runBlock (row.blockSize);
        EXPECT_EQ (host.unbalanced(), "") << row.tempo << " " << row.gate << " " << row.blockSize;
    }
}

TEST (HangingNotes, AreNotMadeByKeysThatNoHandPresses)
{
    struct Row
    {
        const char *odd, *plain; // the plain way to the same held keys
    };

    juce::MidiBuffer allKeys;

    for (auto note = 0; note < 128; ++note)
        allKeys.addEvent (juce::MidiMessage::noteOn (1 + note % 16, note, 0.5f), 0);

    const auto manyKeys = Zn::Tests::text (allKeys);
    const auto noKeys = [&manyKeys] {
        auto lifted = juce::String (manyKeys).replace ("on ", "off ").replace ("@0", "@1");
        return lifted.toStdString();
    }();
    const auto comeAndGo = manyKeys + ", " + noKeys + ", on 60 @2";

    for (const auto& row :
         { Row { "on 60 @0, on 60 @1, on 60 @1", "on 60 @0" },
           Row { "on 60 @0, on 60 @1, off 60 @2", "on 60 @0, off 60 @1" },
           Row { "off 60 @0, off 61 @0, on 64 @1", "on 64 @0" },
           Row { "on 60 @0, on 64 @0, on 60 v0 @1, on 60 v0 @2, on 67 @3", "on 64 @0, on 67 @0" },
           Row { "on 60 @5, off 60 @5, on 62 @5", "on 62 @0" },
           Row { "off 60 @5, on 60 @5", "on 60 @0" },
           Row { "on 60 ch3 @0, on 60 ch9 @0, off 60 ch16 @1, on 48 ch2 @2", "on 48 @0" },
           Row { "cc 64 127 @0, on 60 @1, off 60 @2, on 60 @3, off 60 @4, cc 64 0 @5, on 40 @6", "on 40 @0" },
           Row { "cc 64 127 @0, cc 64 127 @1, on 60 @1, off 60 @2, cc 64 63 @3", "on 60 @0, off 60 @1" },
           Row { comeAndGo.c_str(), "on 60 @0" },
           Row { manyKeys.c_str(), manyKeys.c_str() } })
    {
        const auto tableAfter = [] (const char* keys) {
            ProcessorFixture f;
            f.drawQuarters (0, 0, 1.0);
            TestHost host (f.processor);
            host.send (events (keys));
            host.run (quarter + 10);

            auto reader = f.state.pitchTables.getReader();
            auto table = reader.newest();

            host.send (events ("cc 64 0 @0"));

            for (auto note = 0; note < 128; ++note)
                host.send (events ("off " + std::to_string (note) + " @0"));

            host.run (bar);
            EXPECT_EQ (host.unbalanced(), "") << keys;
            return table;
        };

        EXPECT_EQ (tableAfter (row.odd), tableAfter (row.plain)) << row.odd;
    }
}

TEST (HangingNotes, AreNotMadeByAPedalThatIsNeverLifted)
{
    SoundingStep s { true };
    s.sound();
    s.host.send (events ("cc 64 127 @0, off 60 @1, off 64 @1, off 67 @1"));
    s.host.run (480);
    s.host.playHead.stop();
    s.host.run (quarter);
    EXPECT_THAT (s.host.getSounding(), IsEmpty()) << "stopped";

    s.host.playHead.play();
    s.host.run (quarter);
    EXPECT_THAT (s.host.getSounding(), ElementsAre (60, 64, 67)) << "the pedal holds the chord across a stop";

    s.state.panic();
    s.host.run (bar);
    EXPECT_EQ (s.host.unbalanced(), "");
    EXPECT_THAT (s.host.getSounding(), IsEmpty());
}
} // namespace Zn::Audio::Plugins::Vornel
