#include "GUI/Player/PlayerBand.h"

#include "GUI/Support/OpenEditor.h"
#include "Sequencer/MidiPlayer/ReadResource.h"

#include <gmock/gmock.h>

namespace Zn::GUI
{
namespace
{
using Tests::Hand::click;
using InCharge = Sequencer::PlayHead::Control;

juce::StringArray namesOf (const PlayerTimeline& timeline)
{
    juce::StringArray names;

    for (const auto& chord : timeline.getChords())
        names.add (chord.name);

    return names;
}

struct PlayerStrip : Tests::OpenEditor
{
    Sequencer::MidiPlayer::Settings settings() { return getState().player.get(); }

    void undo() { page.getContext().edits.undo(); }

    PlayerFile& file = find<PlayerFile> ("PlayerFile");
    PlayerTimeline& timeline = find<PlayerTimeline> ("PlayerTimeline");
    int changes = 0;
    Events::Listener listener { getState().projectChanged, [this] { ++changes; } };
};
} // namespace

TEST (PlayerBand, StepsThroughTheFilesAndShowsTheirChords)
{
    PlayerStrip editor;
    EXPECT_EQ (editor.file.getShownName(), "None");

    click (editor.find ("PlayerPrevious"));
    click (editor.find ("PlayerNext"));
    EXPECT_EQ (editor.settings().resource.name, "Chords 1 - Pop");
    EXPECT_EQ (editor.changes, 2);

    for (auto i = 0; i < 6; ++i)
        Tests::Hand::press (editor.file, "cursor down");

    editor.poll();
    EXPECT_EQ (editor.file.getShownName(), "Chords 7 - Neo Soul");
    EXPECT_EQ (editor.file.getShownLength(), "4 bars");
    EXPECT_EQ (namesOf (editor.timeline).joinIntoString (" "), "Am7 Dm9 G13 Cmaj7 F6 E7");

    editor.undo();
    EXPECT_EQ (editor.settings().resource.name, "") << "steps that follow each other are one";
}

TEST (PlayerBand, SwitchesTogetherWithTheKey)
{
    PlayerStrip editor;

    click (editor.find ("PlayerActive"));
    EXPECT_TRUE (editor.settings().active);
    EXPECT_TRUE (editor.getState().keyMode.load());

    click (editor.find ("PlayerSync"));
    EXPECT_FALSE (editor.settings().playing);
    EXPECT_EQ (editor.changes, 2);

    editor.undo();
    EXPECT_TRUE (editor.settings().playing);
    editor.undo();
    EXPECT_FALSE (editor.settings().active);
    EXPECT_FALSE (editor.getState().keyMode.load());
}

TEST (PlayerBand, LightsTheChordThatPlaysAndJumps)
{
    PlayerStrip editor;
    auto& playHead = *editor.getState().playHead;
    editor.getState().player.set ({ Sequencer::MidiPlayer::embedded ("Chords 1 - Pop"), true, true });
    playHead.isPlaying = true;

    for (const auto& [position, lit] : { std::pair (0.0, 0), { 9.5, 2 }, { 20.0, 1 } })
    {
        playHead.positionPpq = position;
        editor.poll();
        EXPECT_EQ (editor.timeline.getLit(), lit) << position;
    }

    const auto bounds = editor.timeline.getLocalBounds().toFloat();

    for (const auto& [control, position] :
         { std::pair (InCharge::host, 20.0), { InCharge::nobody, 12.0 }, { InCharge::editor, 12.0 } })
    {
        playHead.control = control;
        playHead.positionPpq = 20.0;
        click (editor.timeline, bounds.getRelativePoint (0.9f, 0.5f));
        EXPECT_EQ (playHead.positionPpq.load(), position);
    }

    playHead.isPlaying = false;
    playHead.positionPpq = 9.5;
    editor.timeline.keyPressed (juce::KeyPress (juce::KeyPress::rightKey));
    EXPECT_EQ (playHead.positionPpq.load(), 12.0);

    editor.getState().player.setActive (false);
    editor.poll();
    EXPECT_EQ (editor.timeline.getLit(), -1);
}

TEST (PlayerBand, TellsWhyThereAreNoChords)
{
    using Type = Sequencer::MidiPlayer::Resource::Type;
    const auto broken = juce::File::createTempFile (".mid");
    broken.replaceWithText ("MThd");

    struct Row
    {
        Sequencer::MidiPlayer::Resource resource;
        const char *name, *length, *notice;
    };

    const Row rows[] = {
        { {}, "None", "", "Drop a MIDI file here" },
        { { Type::externalFile, "Gone", "/songs/gone.mid" },
          "Gone",
          "missing",
          "This file is not there any more" },
        { { Type::externalFile, "Broken", broken.getFullPathName().toStdString() },
          "Broken",
          "damaged",
          "This file cannot be played" },
        { { Type::binary, "Broken", "AAAA" }, "Broken", "damaged", "This file cannot be played" },
        { { Type::sharedBinary, "Chords of tomorrow", {} }, "None", "", "Drop a MIDI file here" },
        { Sequencer::MidiPlayer::embedded ("Chords 1 - Pop"), "Chords 1 - Pop", "4 bars", "" },
    };

    PlayerStrip editor;

    for (const auto& row : rows)
    {
        editor.getState().player.set ({ row.resource, true, true });
        editor.poll();
        EXPECT_EQ (editor.file.getShownName(), row.name);
        EXPECT_EQ (editor.file.getShownLength(), row.length) << row.name;
        EXPECT_EQ (editor.timeline.getNotice(), row.notice) << row.name;
    }

    broken.deleteFile();
}

TEST (PlayerBand, PlaysWhatIsDroppedOnTheWindow)
{
    PlayerStrip editor;
    const auto target = [&] { return editor.find ("DropTarget").isVisible(); };
    const auto good = juce::File::createTempFile (".mid"), bad = juce::File::createTempFile (".MID");
    juce::MidiFile song;
    juce::MidiMessageSequence track;
    track.addEvent (juce::MidiMessage::noteOn (1, 60, juce::uint8 (100)));
    song.setTicksPerQuarterNote (96);
    song.addTrack (track);
    track.addEvent (juce::MidiMessage::noteOff (1, 60), 96.0);
    song.addTrack (track);

    {
        juce::FileOutputStream stream (good);
        song.writeTo (stream);
    }

    bad.replaceWithText ("MThd");

    EXPECT_FALSE (editor.page.isInterestedInFileDrag ({ "/song.wav" }));
    ASSERT_TRUE (editor.page.isInterestedInFileDrag ({ "/song.wav", good.getFullPathName() }));

    editor.page.getContext().draggedOut = good;
    EXPECT_FALSE (editor.page.isInterestedInFileDrag ({ good.getFullPathName() })) << "it came from here";
    editor.page.getContext().draggedOut = juce::File();

    editor.page.fileDragEnter ({ good.getFullPathName() }, 1, 1);
    EXPECT_TRUE (target());
    editor.page.fileDragExit ({});
    EXPECT_FALSE (target());

    editor.page.filesDropped ({ good.getFullPathName() }, 1, 1);
    EXPECT_TRUE (editor.settings().active);
    EXPECT_EQ (editor.settings().resource.name, good.getFileNameWithoutExtension().toStdString());

    editor.page.filesDropped ({ bad.getFullPathName() }, 1, 1);
    EXPECT_EQ (editor.settings().resource, Sequencer::MidiPlayer::Resource());

    editor.getState().keyMode = false;
    editor.page.filesDropped ({ good.getFullPathName() }, 1, 1);
    EXPECT_FALSE (editor.getState().keyMode.load()) << "it was switched while the player was on";

    for (auto drops = 3; --drops >= 0;)
        editor.undo();

    EXPECT_FALSE (editor.settings().active) << "a drop is one step";

    good.deleteFile();
    bad.deleteFile();
}
} // namespace Zn::GUI
