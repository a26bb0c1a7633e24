#include "Plugin/Vornel/ExportSlot.h"

#include "Plugin/ProcessorFixture.h"
#include "Sequencer/MidiPlayer/Song.h"
#include "Support/RenderedSteps.h"

#include <gtest/gtest.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using Tests::loop;
using Tests::note;
using Tests::Notes;
using Tests::steps;

const auto cMajor = Midi::RowToPitchTable::from ({ 60, 64, 67 }, Midi::wholeKeyboard);

/** As "60 v100 0-480, ... end 1920", times in ticks. */
std::string text (juce::MidiFile file)
{
    juce::MemoryOutputStream bytes;
    file.writeTo (bytes);
    juce::MemoryInputStream stream (bytes.getMemoryBlock(), true);
    juce::MidiFile read;
    EXPECT_TRUE (read.readFrom (stream));

    juce::StringArray parts;

    for (const auto* event : *read.getTrack (0))
        if (event->message.isNoteOn())
            parts.add (juce::String (event->message.getNoteNumber()) + " v"
                       + juce::String (event->message.getVelocity()) + " "
                       + juce::String (event->message.getTimeStamp(), 0) + "-"
                       + juce::String (event->noteOffObject->message.getTimeStamp(), 0));

    parts.add ("end " + juce::String (read.getLastTimestamp(), 0));
    return parts.joinIntoString (", ").toStdString();
}
} // namespace

TEST (ExportSlot, WritesOnePassOfWhatIsHeard)
{
    auto never = note (65, 0.5, 0.5);
    never.event.chance = 0.0f;
    never.event.spreadHigh = 0.5f;

    auto disabled = note (66, 0.0, 1.0);
    disabled.enabled = false;

    struct Row
    {
        const char* name;
        Sequencer::RenderedSlot slot;
        const char* expected;
    };

    const Row rows[] = {
        { "steps", loop (2.0, steps ("x-.x")), "60 v102 0-960, 60 v102 1440-1920, end 1920" },
        { "chance and spread", loop (1.0, Notes { never }), "64 v102 480-960, end 960" },
        { "disabled", loop (1.0, Notes { disabled }), "end 960" },
        { "swung", loop (1.0, Notes { note (64, 0.36, 0.24) }), "60 v102 345-576, end 960" },
        { "a row over itself",
          loop (1.0, Notes { note (64, 0.0, 0.75), note (64, 0.5, 0.25) }),
          "60 v102 0-480, 60 v102 480-720, end 960" },
        { "over the end", loop (1.0, Notes { note (67, 0.5, 9.0) }), "72 v102 480-960, end 960" },
        { "over bars",
          loop (9.0, Notes { note (64, 3.5, 1.0), note (65, 8.0, 1.0) }),
          "60 v102 3360-4320, 64 v102 7680-8640, end 8640" },
        { "empty", {}, "end 0" },
    };

    for (const auto& row : rows)
        EXPECT_EQ (text (exportSlot (row.slot, cMajor, 124.0)), row.expected) << row.name;
}

TEST (ExportSlot, CanBePlayedAgain)
{
    juce::MemoryOutputStream bytes;
    exportSlot (loop (8.0, steps ("x.x.x.x.")), cMajor, 124.0).writeTo (bytes);

    const auto content = bytes.getMemoryBlock();
    const auto song =
        Sequencer::MidiPlayer::readSong (std::as_bytes (std::span (content.begin(), content.getSize())));
    ASSERT_NE (song, nullptr);
    EXPECT_EQ (song->numBars, 2);
    EXPECT_EQ (song->slot.events.notes.size(), 4u);
}

TEST (ExportSlot, TakesTheLastChord)
{
    ProcessorFixture f;
    f.drawQuarters (0, 1);
    TestHost host (f.processor);

    const auto firstPitch = [&] { return text (exportSlot (f.state, 0)).substr (0, 2); };
    EXPECT_EQ (firstPitch(), "64") << "of C major";

    host.send (events ("on 57 @0, on 61 @0, on 64 @9"));
    host.run (512);
    EXPECT_EQ (firstPitch(), "61");

    host.send (events ("off 57 @0, off 64 @9, off 61 @600"));
    host.run (1024);
    EXPECT_EQ (firstPitch(), "61");

    EXPECT_EQ (exportSlot (f.state, 1).getNumTracks(), 0) << "there is nothing in it";
}
} // namespace Zn::Audio::Plugins::Vornel
