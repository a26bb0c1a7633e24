#include "ExampleFiles.h"
#include "MidiBytes.h"

#include "Render/Errors.h"
#include "Render/MidiFileSource.h"

#include <gmock/gmock.h>
#include <juce_audio_basics/juce_audio_basics.h>

#include <algorithm>

using namespace Zn::Render;
using namespace Zn::Tests;

namespace
{
/** "seconds: bytes" of each message, those of one moment in order of their bytes. */
std::vector<std::string> sorted (std::vector<std::pair<double, juce::String>> events)
{
    std::vector<std::string> lines;

    for (const auto& [seconds, bytes] : events)
        lines.push_back ((juce::String (seconds, 6).paddedLeft ('0', 12) + ": " + bytes).toStdString());

    std::ranges::sort (lines);
    return lines;
}

std::vector<std::string> eventsOf (const MidiFileSource& source)
{
    std::vector<std::pair<double, juce::String>> list;

    for (auto events = source.getEvents(); events.peek() != nullptr; events.pop())
    {
        const auto& event = *events.peek();
        auto bytes = juce::String::toHexString (event.status);
        bytes << ' ' << juce::String::toHexString (event.data.data(), static_cast<int> (event.data.size()));
        list.emplace_back (source.getTempoMap().secondsFromQuarters (event.quarters), bytes);
    }

    return sorted (list);
}

std::vector<std::string> eventsByJuce (const juce::File& file)
{
    juce::FileInputStream stream (file);
    juce::MidiFile midi;
    midi.readFrom (stream);
    midi.convertTimestampTicksToSeconds();

    std::vector<std::pair<double, juce::String>> list;

    for (auto track = 0; track < midi.getNumTracks(); ++track)
        for (const auto* holder : *midi.getTrack (track))
            if (! holder->message.isMetaEvent())
                list.emplace_back (holder->message.getTimeStamp(),
                                   juce::String::toHexString (holder->message.getRawData(),
                                                              holder->message.getRawDataSize()));

    return sorted (list);
}

/** Message after message as "quarters:status.data", in the order in which they are played. */
std::string order (const Bytes& file)
{
    const MidiFileSource source (file);
    juce::StringArray words;

    for (auto events = source.getEvents(); events.peek() != nullptr; events.pop())
    {
        const auto& event = *events.peek();
        words.add (juce::String (event.quarters) + ":" + juce::String::toHexString (event.status) + "."
                   + juce::String (event.data[0]));
    }

    return words.joinIntoString (" ").toStdString();
}

std::string errorOf (const Bytes& file)
{
    try
    {
        const MidiFileSource source (file);
        return {};
    }
    catch (const FileError& error)
    {
        return error.what();
    }
}
} // namespace

TEST (MidiFileSource, ReadsTheExamplesAsJuceDoes)
{
    for (const auto* name : exampleNames)
        EXPECT_EQ (eventsOf (MidiFileSource (exampleFile (name))), eventsByJuce (exampleFile (name))) << name;
}

TEST (MidiFileSource, MergesTracksInOrderAndEndsNotesBeforeItStartsThem)
{
    const auto merged = midiFile (1,
                                  2,
                                  { { 0, 0x90, 60, 9, 2, 0x90, 60, 9, 0, 0x80, 60, 0, 2, 0x80, 60, 0 },
                                    { 1, 0x91, 40, 9, 1, 0xb1, 64, 0, 0, 0x91, 40, 0 } });

    EXPECT_EQ (order (merged), "0:90.60 0.5:91.40 1:80.60 1:91.40 1:90.60 1:b1.64 2:80.60");

    const auto withoutLength =
        midiFile (0, 1, { { 0, 0x90, 60, 9, 0, 0x80, 60, 0, 0, 0x90, 62, 9, 1, 62, 0 } });
    EXPECT_EQ (order (withoutLength), "0:90.60 0:80.60 0:90.62 1:90.62");
}

TEST (MidiFileSource, KeepsRunningStatusAcrossMetaEventsAndSkipsForeignChunks)
{
    auto file = midiFile (0, 1, { { 0, 0x90, 60, 9, 1,    0xff, 1, 2, 'h', 'i',
                                    0, 62,   9,  0, 0xff, 0x2f, 0, 0, 61,  9 } });
    const Bytes foreign { 'X', 'Y', 'Z', ' ', 0, 0, 0, 2, 1, 2 };
    file.insert (file.begin() + 14, foreign.begin(), foreign.end());

    EXPECT_EQ (order (file), "0:90.60 1:90.62") << "what follows the end of the track is no music";
}

TEST (MidiFileSource, SaysWhatIsWrongWithAFile)
{
    const Bytes note { 0, 0x90, 60, 9 };
    const std::pair<Bytes, const char*> rows[] {
        { {}, "is empty" },
        { { 'R', 'I', 'F', 'F', 0, 0, 0, 0 }, "not a MIDI file" },
        { { 'M', 'T' }, "truncated" },
        { midiFile (2, 96, { note }), "format 2" },
        { midiFile (1, 0xe728, { note }), "SMPTE" },
        { midiFile (1, 0, { note }), "0 ticks" },
        { midiFile (0, 96, { { 0, 60, 9 } }), "without a status" },
        { midiFile (0, 96, { { 0, 0x90, 60 } }), "beyond the end of its track" },
        { midiFile (0, 96, { { 0, 0x90, 60, 200 } }), "above 127" },
        { midiFile (0, 96, { { 0x80, 0x80, 0x80, 0x80, 0, 0x90, 60, 9 } }), "does not end" },
        { midiFile (0, 96, { { 0, 0xf8 } }), "files cannot hold" },
    };

    for (const auto& [file, message] : rows)
        EXPECT_THAT (errorOf (file), testing::HasSubstr (message));
}

TEST (MidiFileSource, RefusesEveryTruncationOfAFile)
{
    for (const auto* name : exampleNames)
    {
        const auto whole = bytesOf (exampleFile (name));

        for (std::size_t size = 1; size < whole.size(); ++size)
            EXPECT_THAT (errorOf (Bytes (whole.begin(), whole.begin() + static_cast<std::ptrdiff_t> (size))),
                         testing::HasSubstr ("truncated"))
                << name << " cut at " << size;
    }
}
