#include "Plugin/ProcessorFixture.h"

#include "Sequencer/MidiPlayer/ReadResource.h"
#include "Support/Documents.h"

#include <gmock/gmock.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

const auto pop = Sequencer::MidiPlayer::embedded ("Chords 1 - Pop"); // C G Am F, a bar each

/** The chords go through the plug-in as keys would, which are then heard directly. */
struct ChordPlayer : ProcessorFixture
{
    explicit ChordPlayer (bool arp = false)
    {
        set ("Arp-Active", arp ? "On" : "Off");
        state.player.choose (pop);
        state.setPlayerActive (true);
    }

    void stopAndLetGo()
    {
        host.send (events ("off 60 @0, off 64 @0, off 67 @0, cc 64 0 @0"));
        state.setPlayerActive (false);
        host.playHead.stop();
        host.run (2 * bar);
    }

    TestHost host { processor, 48000.0, 480 };
};

constexpr auto c = "48, 64, 67", g = "55, 62, 71", aMinor = "57, 64, 72";

std::string soundingText (const TestHost& host)
{
    juce::StringArray pitches;

    for (const auto pitch : host.getSounding())
        pitches.add (juce::String (pitch));

    return pitches.joinIntoString (", ").toStdString();
}
} // namespace

TEST (MidiPlayer, ChangesChordOnTheSampleOfTheBarWhateverTheBlocks)
{
    for (const auto blockSize : { 480, 441 })
    {
        ChordPlayer p;
        p.host.nextBlockSize = [blockSize] { return blockSize; };

        // A start between two samples of which the one ended a block comes with the next.
        for (const auto* chord : { c, g, aMinor })
        {
            p.host.run (2);
            EXPECT_EQ (soundingText (p.host), chord) << blockSize << " at " << p.host.getPosition();
            p.host.run (bar - 4);
            EXPECT_EQ (soundingText (p.host), chord) << blockSize << " at " << p.host.getPosition();
            p.host.run (2);
        }
    }
}

TEST (MidiPlayer, FeedsThePattern)
{
    ChordPlayer p (true);
    p.drawQuarters (0, 0);
    p.host.run (4 * bar);

    EXPECT_THAT (startsOf (p.host, 48), ElementsAre (0, quarter, 2 * quarter, 3 * quarter));
    EXPECT_THAT (startsOf (p.host, 55),
                 ElementsAre (bar, bar + quarter, bar + 2 * quarter, bar + 3 * quarter));
    EXPECT_EQ (startsOf (p.host, 57).front(), 2 * bar);

    p.set ("Key", "D");
    p.host.run (quarter);
    EXPECT_EQ (startsOf (p.host, 50), std::vector { 4 * bar }) << "the key moves what is written in C";
}

TEST (MidiPlayer, FollowsTheHostsJumpsAndLoops)
{
    ChordPlayer p;
    p.host.playHead.jumpTo (17.5);
    p.host.run (quarter);
    EXPECT_EQ (soundingText (p.host), c) << "in the middle of the first bar of its second time";

    p.host.playHead.jumpTo (9.0);
    p.host.run (quarter);
    EXPECT_EQ (soundingText (p.host), aMinor);

    p.host.playHead.jumpTo (6.0);
    p.host.playHead.setLoop (6.0, 9.0);

    for (auto pass = 0; pass < 3; ++pass)
    {
        p.host.run (quarter);
        EXPECT_EQ (soundingText (p.host), g) << pass;
        p.host.run (quarter + quarter / 2);
        EXPECT_EQ (soundingText (p.host), aMinor) << pass;
        p.host.run (quarter / 2);
    }

    p.stopAndLetGo();
    EXPECT_EQ (p.host.unbalanced(), "");
}

TEST (MidiPlayer, LoopsOnTheSampleWhereverItLiesInABlock)
{
    for (const auto arp : { false, true })
        for (const auto blockSize : { 480, 441, 512, 7001 })
        {
            ChordPlayer p (arp);
            p.drawQuarters (0, 0);
            p.host.nextBlockSize = [blockSize] { return blockSize; };
            p.host.playHead.jumpTo (3.0);
            p.host.playHead.setLoop (3.0, 10.0); // of a bar and of a file no whole number
            p.host.run (14 * quarter - 1);

            SCOPED_TRACE (testing::Message() << (arp ? "pattern" : "keys") << " in blocks of " << blockSize);

            for (const auto& [pitch, starts] : { std::pair (48, std::vector { 0 }),
                                                 std::pair (55, std::vector { 1, 2, 3, 4 }),
                                                 std::pair (57, std::vector { 5, 6 }) })
            {
                std::vector<int> expected;

                for (const auto pass : { 0, 7 })
                    for (const auto start : starts)
                        if (arp || start == starts.front())
                            expected.push_back ((start + pass) * quarter);

                EXPECT_THAT (startsOf (p.host, pitch), ElementsAreArray (expected)) << pitch;
            }
        }
}

TEST (MidiPlayer, LeavesNothingHangingWhateverHappens)
{
    struct Row
    {
        const char* name;
        const char* sounding; // a quarter later
        std::function<void (ChordPlayer&)> happen;
    };

    const Row rows[] = {
        { "nothing", c, [] (auto&) {} },
        { "turned off", "", [] (auto& p) { p.state.setPlayerActive (false); } },
        { "out of step", "", [] (auto& p) { p.state.player.setPlaying (false); } },
        { "no file", "", [] (auto& p) { p.state.player.choose ({}); } },
        { "another file",
          "57, 60, 64",
          [] (auto& p) { p.state.player.choose (Sequencer::MidiPlayer::embedded ("Chords 4 - Trance")); } },
        { "the host stops calling",
          c,
          [] (auto& p) {
              p.processor.releaseResources();
              p.processor.prepareToPlay (48000.0, 512);
          } },
        { "panic, until the next chord", "", [] (auto& p) { p.state.panic(); } },
        { "the host stops", "", [] (auto& p) { p.host.playHead.stop(); } },
        { "turned off and on",
          c,
          [] (auto& p) {
              p.state.setPlayerActive (false);
              p.host.run (quarter);
              p.state.setPlayerActive (true);
          } },
        { "the host stops and goes on",
          c,
          [] (auto& p) {
              p.host.playHead.stop();
              p.host.run (quarter);
              p.host.playHead.play();
          } },
        { "keys take over",
          "60",
          [] (auto& p) {
              p.state.setPlayerActive (false);
              p.host.send (events ("on 60 @0"));
          } },
        { "keys meanwhile", c, [] (auto& p) { p.host.send (events ("on 60 @0, cc 64 127 @0, off 60 @9")); } },
        { "keys and a pedal that are held give way",
          c,
          [] (auto& p) {
              p.state.setPlayerActive (false);
              p.host.send (events ("cc 64 127 @0, on 60 @0, on 67 @0, off 60 @100"));
              p.host.run (quarter);
              p.state.setPlayerActive (true);
          } },
        { "another key", "50, 66, 69", [] (auto& p) { p.set ("Key", "D"); } },
        { "a project that is on its way",
          "60",
          [] (auto& p) {
              p.state.player.setActive (false);
              juce::MemoryBlock project;
              p.processor.getStateInformation (project);
              p.state.player.setActive (true);
              p.host.run (quarter);
              p.processor.setStateInformation (project.getData(), static_cast<int> (project.getSize()));
              p.host.send (events ("on 60 @0"));
          } },
    };

    for (const auto arp : { false, true })
        for (const auto& row : rows)
        {
            ChordPlayer p (arp);
            p.host.run (quarter / 2);
            row.happen (p);
            p.host.run (quarter);

            if (! arp)
            {
                EXPECT_EQ (soundingText (p.host), row.sounding) << row.name;
            }

            p.stopAndLetGo();
            EXPECT_EQ (p.host.unbalanced(), "") << row.name;
            EXPECT_THAT (p.host.getSounding(), IsEmpty()) << row.name;
        }
}

TEST (MidiPlayer, ComesBackWithTheProjectOnly)
{
    using Type = Sequencer::MidiPlayer::Resource::Type;
    ChordPlayer p;

    juce::MemoryBlock project;
    p.processor.getStateInformation (project);
    const auto settings = p.state.player.get();

    p.state.player.set ({});
    p.processor.setStateInformation (project.getData(), static_cast<int> (project.getSize()));
    p.processor.finishPendingLoad();
    EXPECT_EQ (p.state.player.get(), settings);
    EXPECT_NE (p.state.player.getSong(), nullptr);
    EXPECT_TRUE (p.state.keyMode.load());

    p.state.player.set ({ { Type::externalFile, "Gone", "/songs/gone.mid" }, true, true });
    EXPECT_EQ (p.state.player.getSong(), nullptr);
    EXPECT_EQ (p.state.midiFile.getCurrentText(), "Gone") << "it may be there again tomorrow";

    const auto document = Tests::saved (p.state, ReflectorContext::forPresetFile());
    EXPECT_FALSE (document.contains ("MidiPlayer")) << "a preset leaves the player alone";
}
} // namespace Zn::Audio::Plugins::Vornel
