#include "Sequencer/MidiPlayer/ChoiceParam.h"

#include "Foundation/Events/Listener.h"
#include "Sequencer/MidiPlayer/ChordFiles.h"
#include "Sequencer/MidiPlayer/Player.h"
#include "Sequencer/MidiPlayer/ReadResource.h"

#include "Render/MidiBytes.h"
#include "Support/MidiText.h"
#include "Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <array>
#include <cmath>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
using Tests::Bytes;
using Tests::midiFile;

constexpr int division = 4; // ticks in a quarter note, so that a delta of 16 is a bar

std::shared_ptr<const Song> read (const Bytes& bytes)
{
    return readSong (std::as_bytes (std::span (bytes)));
}

/** As "2 bars of 4: 60 0+4 v100", times in quarter notes. */
std::string text (const std::shared_ptr<const Song>& song)
{
    if (song == nullptr)
        return "none";

    juce::String text;
    text << song->numBars << " bars of " << song->barLength << ":";

    for (const auto& note : song->slot.events.notes)
        text << " " << note.event.noteNum << " " << note.time.start << "+" << note.time.length << " v"
             << juce::roundToInt (note.event.velocity * 127.0f);

    return text.toStdString();
}

struct FileRow
{
    const char* name;
    Bytes file;
    const char* expected;
};

const Bytes plainTrack { 0, 0x90, 60, 100, 16, 0x80, 60, 0 };

const FileRow fileRows[] = {
    { "one note", midiFile (0, division, { plainTrack }), "1 bars of 4: 60 0+4 v100" },
    { "running status, and a velocity of 0 for an end",
      midiFile (0, division, { { 0, 0x90, 60, 100, 0, 64, 90, 16, 60, 0, 4, 64, 0 } }),
      "2 bars of 4: 60 0+4 v100 64 0+5 v90" },
    { "all tracks and channels as one, in the order of time",
      midiFile (1, division, { { 8, 0x99, 40, 1, 8, 0x89, 40, 0 }, {}, plainTrack }),
      "1 bars of 4: 60 0+4 v100 40 2+2 v1" },
    { "whatever its tempo",
      midiFile (1,
                division,
                { { 0, 0xFF, 0x51, 3, 1, 2, 3, 8, 0xFF, 0x51, 3, 0, 0, 0, 0, 0xFF, 0x51, 3, 9, 9, 9 },
                  plainTrack }),
      "1 bars of 4: 60 0+4 v100" },
    { "bars of its own",
      midiFile (0, division, { { 0, 0xFF, 0x58, 4, 3, 2, 24, 8, 0, 0x90, 60, 100, 16, 0x80, 60, 0 } }),
      "2 bars of 3: 60 0+4 v100" },
    { "bars that make no sense",
      midiFile (0, division, { { 0,  0xFF, 0x58, 4,    0,    2, 24, 8,    0,  0xFF, 0x58, 4,    4,  99,
                                 24, 8,    0,    0xFF, 0x58, 0, 0,  0x90, 60, 100,  16,   0x80, 60, 0 } }),
      "1 bars of 4: 60 0+4 v100" },
    { "a rest behind the last note counts",
      midiFile (0, division, { { 0, 0x90, 60, 100, 16, 0x80, 60, 0, 16, 0xFF, 0x2F, 0 } }),
      "2 bars of 4: 60 0+4 v100" },
    { "played a little over the bar line",
      midiFile (0, 96, { { 0, 0x90, 60, 100, 0x83, 0x03, 0x80, 60, 0 } }),
      "1 bars of 4: 60 0+4.03125 v100" },
    { "struck again while it sounds",
      midiFile (0, division, { { 0, 0x90, 60, 100, 4, 0x90, 60, 90, 4, 0x80, 60, 0,
                                 8, 0x80, 60, 0,   0, 0x90, 60, 80, 4, 0x80, 60, 0 } }),
      "2 bars of 4: 60 0+1 v100 60 1+1 v90 60 4+1 v80" },
    { "a pitch of two tracks",
      midiFile (1,
                division,
                { plainTrack, { 4, 0x90, 60, 90, 4, 0x80, 60, 0 }, { 0, 0x90, 60, 50, 2, 0x80, 60, 0 } }),
      "1 bars of 4: 60 0+1 v100 60 1+3 v90" },
    { "no end",
      midiFile (1, division, { { 0, 0x90, 60, 100 }, { 32, 0xFF, 0x2F, 0 } }),
      "2 bars of 4: 60 0+8 v100" },
    { "ends without beginnings",
      midiFile (0, division, { { 0, 0x80, 60, 0, 0, 0x80, 61, 0, 4, 0x90, 60, 100, 4, 0x80, 60, 0 } }),
      "1 bars of 4: 60 1+1 v100" },
    { "a note without a length beside another",
      midiFile (0, division, { { 0, 0x90, 60, 100, 0, 0x80, 60, 0, 0, 0x90, 62, 100, 4, 0x80, 62, 0 } }),
      "1 bars of 4: 62 0+1 v100" },
    { "nothing but controllers", midiFile (0, division, { { 0, 0xB0, 7, 100 } }), "none" },
    { "tracks without events", midiFile (1, division, { {}, {} }), "none" },
    { "no tracks", midiFile (1, division, {}), "none" },
    { "SMPTE frames", midiFile (0, 0xE728, { plainTrack }), "none" },
    { "no ticks at all", midiFile (0, 0, { plainTrack }), "none" },
    { "a format that does not exist", midiFile (3, division, { plainTrack }), "none" },
    { "nothing", {}, "none" },
    { "another kind of file", Bytes (100, 'R'), "none" },
};

/** A file with one note, behind a header that is as long as it says, and other chunks. */
Bytes wordyFile (std::uint32_t headerSize, std::uint32_t numTracks, std::uint32_t sizeOfChunk)
{
    Bytes file { 'M', 'T', 'h', 'd' };
    Tests::append (file, headerSize, 4);
    Tests::append (file, 0, 2);
    Tests::append (file, numTracks, 2);
    Tests::append (file, division, 2);
    file.resize (8 + headerSize, 1);
    file.insert (file.end(), { 'X', 'F', 'I', 'H' });
    Tests::append (file, sizeOfChunk, 4);
    file.insert (file.end(), { 1, 2, 3 });

    const auto plain = midiFile (0, division, { plainTrack });
    file.insert (file.end(), plain.begin() + 14, plain.end());
    file.insert (file.end(), { 'e', 'n', 'd' });
    return file;
}

/** An endless stream of notes: a delta of so many ticks, then `numNotes` of a tick each. */
Bytes manyNotes (int numNotes, std::uint8_t delta, std::uint8_t length)
{
    Bytes track;

    for (auto i = 0; i < numNotes; ++i)
    {
        const auto pitch = static_cast<std::uint8_t> (i % 128);
        track.insert (track.end(), { delta, 0x90, pitch, 100, length, 0x80, pitch, 0 });
    }

    return midiFile (0, division, { track });
}
} // namespace

TEST (MidiPlayerSong, ReadsWhatFilesBring)
{
    for (const auto& row : fileRows)
        EXPECT_EQ (text (read (row.file)), row.expected) << row.name;
}

TEST (MidiPlayerSong, IsFoundBehindHeadersOfOtherKinds)
{
    const auto* note = "1 bars of 4: 60 0+4 v100";

    EXPECT_EQ (text (read (wordyFile (6, 1, 3))), note);
    EXPECT_EQ (text (read (wordyFile (60, 1, 3))), note);

    for (const auto& [headerSize, numTracks, sizeOfChunk] :
         std::initializer_list<std::array<std::uint32_t, 3>> {
             { 4, 1, 3 }, // too short for what it has to say
             { 6, 2, 3 }, // promises more tracks
             { 6, 65535, 3 },
             { 6, 1, 4 }, // runs into the track
             { 6, 1, 0x7FFFFFFF },
             { 6, 1, 0xFFFFFFFF } })
        EXPECT_EQ (text (read (wordyFile (headerSize, numTracks, sizeOfChunk))), "none")
            << headerSize << " " << numTracks << " " << sizeOfChunk;
}

TEST (MidiPlayerSong, OfAFileThatIsCutAnywhereIsNone)
{
    const auto whole = midiFile (1,
                                 480,
                                 { { 0, 0xFF, 0x03, 2, 'A', 'b', 0, 0x90, 60, 100, 0x87, 0x40, 60, 0 },
                                   { 0, 0xF0, 2, 1, 0xF7, 5, 0x90, 64, 90, 1, 0x80, 64, 0 } });
    ASSERT_NE (text (read (whole)), "none");

    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ (text (read (Bytes (whole.begin(), whole.begin() + static_cast<std::ptrdiff_t> (size)))),
                   "none")
            << size;
}

TEST (MidiPlayerSong, OfDamagedBytesCanBePlayed)
{
    const auto whole =
        midiFile (1, 96, { plainTrack, { 0, 0xF0, 2, 1, 0xF7, 5, 0x90, 64, 90, 1, 0x80, 64, 0 } });
    juce::Random random (1);

    for (auto i = 0; i < 20000; ++i)
    {
        auto damaged = whole;

        for (auto damages = 1 + random.nextInt (3); --damages >= 0;)
            damaged[static_cast<std::size_t> (random.nextInt (static_cast<int> (damaged.size())))] =
                static_cast<std::uint8_t> (random.nextInt (256));

        const auto song = read (damaged);

        if (song == nullptr)
            continue;

        ASSERT_GE (song->numBars, 1) << i;
        ASSERT_LE (song->slot.playLength, 65536.0) << i;

        for (const auto& note : song->slot.events.notes)
        {
            ASSERT_GT (note.time.length, 0.0) << i;
            ASSERT_TRUE (note.time.start >= 0.0 && note.time.start < song->slot.playLength) << i;
        }
    }
}

TEST (MidiPlayerSong, LeavesOutWhatIsTooMuch)
{
    EXPECT_EQ (text (read (manyNotes (140000, 1, 1))), "none") << "over a mebibyte";

    Bytes manyEvents (3 * 5'000'000 + 1);
    manyEvents[1] = 0x90; // from then on, running status
    EXPECT_EQ (text (read (midiFile (0, division, { manyEvents }))), "none") << "five million events";

    const auto many = read (manyNotes (9000, 1, 1));
    EXPECT_EQ (many->slot.events.notes.size(), 8192u);
    EXPECT_EQ (many->numBars, 8192 * 2 / 16);

    const auto fiveHours = read (manyNotes (1200, 4, 127));
    EXPECT_EQ (fiveHours->numBars, static_cast<int> (std::ceil (1200 * 131 / 16.0)));

    auto late = manyNotes (2, 1, 1);
    late[13] = 1; // ticks in a quarter note
    late[22 + 8] = 0xFF;
    late.insert (late.begin() + 22 + 9, { 0xFF, 0xFF, 0x7F });
    late[21] = static_cast<std::uint8_t> (late[21] + 3);
    EXPECT_EQ (text (read (late)), "16384 bars of 4: 0 1+1 v100") << "the second is later than all patterns";

    Bytes dense;

    for (auto i = 0; i < 500; ++i)
        for (const auto velocity : { 100, 0 })
            dense.insert (
                dense.end(),
                { 1, 0x90, static_cast<std::uint8_t> (i % 100), static_cast<std::uint8_t> (velocity) });

    EXPECT_EQ (read (midiFile (0, 32767, { dense }))->slot.events.notes.size(), 128u)
        << "all within a moment";
}

TEST (MidiPlayerResource, IsReadFromWhereItLies)
{
    const Zn::Tests::ScratchFolder folder;
    const auto file = folder.file (juce::CharPointer_UTF8 ("\xC3\xA4 song.mid"));
    const auto bytes = midiFile (0, division, { plainTrack });
    file.replaceWithData (bytes.data(), bytes.size());

    const auto pipe = folder.file ("pipe");
    ASSERT_EQ (mkfifo (pipe.getFullPathName().toRawUTF8(), 0600), 0);

    const auto path = file.getFullPathName().toStdString();
    const auto encoded = juce::Base64::toBase64 (bytes.data(), bytes.size()).toStdString();
    using Type = Resource::Type;

    struct Row
    {
        Resource resource;
        bool isThere;
    };

    const Row rows[] = {
        { { Type::externalFile, "song", path }, true },
        { { Type::binary, "song", encoded }, true },
        { { Type::sharedBinary, "Chords 1 - Pop", {} }, true },
        { { Type::none, "song", path }, false },
        { { Type::externalFile, "song", path + "i" }, false },
        { { Type::externalFile, "song", "song.mid" }, false },
        { { Type::externalFile, "song", {} }, false },
        { { Type::externalFile, "song", folder.folder.getFullPathName().toStdString() }, false },
        { { Type::externalFile, "song", pipe.getFullPathName().toStdString() }, false },
        { { Type::binary, "song", "no base64!" }, false },
        { { Type::binary, "song", {} }, false },
        { { Type::sharedBinary, "Chords 1 - Nothing", {} }, false },
    };

    for (const auto& [resource, isThere] : rows)
        EXPECT_EQ (readSong (resource) != nullptr, isThere) << resource.data << " " << resource.name;

    const auto taken = resourceOf (file);
    EXPECT_EQ (taken, (Resource { Type::binary, "\xC3\xA4 song", encoded }))
        << "a temporary file will not stay";
    EXPECT_EQ (resourceOf (juce::File ("/songs/a.mid")),
               (Resource { Type::externalFile, "a", "/songs/a.mid" }));
}

TEST (MidiPlayerChords, AreProgressionsOfFullChords)
{
    ASSERT_GE (chordFileNames().size(), 24);
    EXPECT_EQ (chordFileNames()[0], "Chords 1 - Pop");
    EXPECT_TRUE (chordFileNames()[9].startsWith ("Chords 10 - "));

    for (const auto& name : chordFileNames())
    {
        const auto song = readSong (embedded (name));
        ASSERT_NE (song, nullptr) << name;
        EXPECT_TRUE (song->numBars >= 2 && song->numBars <= 8) << name;

        for (auto time = 0.0; time < song->slot.playLength; time += 0.25)
        {
            const auto sounding =
                std::ranges::count_if (song->slot.events.notes, [time] (const TimedNote& note) {
                    return note.time.start <= time && time < note.time.end();
                });

            EXPECT_TRUE (sounding >= 3 && sounding <= 5) << name << " at " << time << ": " << sounding;
        }
    }
}

TEST (MidiPlayerChoice, OffersTheFilesOfTheProgramAndTheOneFromElsewhere)
{
    Controller controller;
    ChoiceParam choice (controller);
    auto asked = 0;
    Events::Listener listener { choice.openWanted, [&asked] { ++asked; } };

    const auto numFiles = chordFileNames().size();
    EXPECT_EQ (choice.getCurrentText(), "None");
    EXPECT_EQ (choice.getNumSteps(), numFiles + 1);

    choice.setFromText ("Chords 3 - Ballad");
    EXPECT_EQ (choice.getInt(), 3);
    EXPECT_EQ (controller.getSong()->numBars, 8);

    choice.setInt (numFiles + 1);
    EXPECT_EQ (asked, 1);
    EXPECT_EQ (choice.getCurrentText(), "Chords 3 - Ballad");

    choice.step (-3);
    EXPECT_EQ (choice.getInt(), numFiles) << "round the ends";
    choice.step (1);
    EXPECT_EQ (choice.getInt(), 1);

    const auto bytes = midiFile (0, division, { plainTrack });
    controller.choose ({ Resource::Type::binary,
                         "Mine",
                         juce::Base64::toBase64 (bytes.data(), bytes.size()).toStdString() });
    EXPECT_EQ (choice.getCurrentText(), "Mine");
    EXPECT_EQ (choice.getNumSteps(), numFiles + 2);
    EXPECT_EQ (choice.getNormalised(), 1.0f);

    choice.setNormalisedNotifying (1.0f);
    EXPECT_EQ (choice.getCurrentText(), "Mine");
    choice.step (-1);
    EXPECT_EQ (choice.getInt(), numFiles);

    for (const auto* unknown : { "Mine", "Open...", "" })
    {
        choice.setInt (1);
        choice.setFromText (unknown);
        EXPECT_EQ (choice.getInt(), 0) << unknown;
    }

    choice.setInt (1);
    controller.choose ({ Resource::Type::binary, "Broken", "AAAA" });
    EXPECT_EQ (choice.getCurrentText(), "None");
    EXPECT_EQ (controller.getSong(), nullptr);
}

TEST (MidiPlayerPlayer, EndsAChordAheadOfTheNextHoweverTheBlocksFall)
{
    const auto bytes =
        midiFile (0, division, { { 0, 0x90, 60, 100, 0, 0x90, 64, 100, 4,  0x80, 60, 0, 0, 0x80, 64, 0, //
                                   0, 0x90, 64, 90,  0, 0x90, 65, 90,  12, 0x80, 64, 0, 0, 0x80, 65, 0 } });

    for (const auto start : { 0.95, 0.96, 0.97, 0.98, 0.99 })
    {
        Controller controller;
        Player player (controller);
        player.prepare (16);
        controller.choose ({ Resource::Type::binary,
                             "Two chords",
                             juce::Base64::toBase64 (bytes.data(), bytes.size()).toStdString() });

        juce::MidiBuffer all;
        auto isFirst = true;

        for (auto position = start; position < 1.05; position += 0.03)
        {
            const double positions[] = { position, position + 0.01, position + 0.02 };
            player.run ({ positions, true, isFirst, isFirst, 0.01 }, all);
            isFirst = false;
        }

        juce::String order;

        for (const auto event : all)
            order << (event.getMessage().isNoteOn() ? "+" : "-") << event.getMessage().getNoteNumber() << " ";

        EXPECT_TRUE (order == "+60 +64 -60 -64 +64 +65 " || order == "+60 +64 -64 -60 +64 +65 ")
            << order << start;
    }
}
} // namespace Zn::Sequencer::MidiPlayer
