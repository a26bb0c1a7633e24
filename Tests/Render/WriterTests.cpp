#include "Render/Errors.h"
#include "Render/JsonLinesWriter.h"
#include "Render/MidiFileWriter.h"
#include "Render/WavFileWriter.h"
#include "Support/MidiText.h"
#include "Support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Zn::Render;
using namespace Zn::Tests;

namespace
{
/** Writes the blocks one after the other and completes the file. */
void writeBlocks (OutputWriter& writer, std::initializer_list<juce::MidiBuffer> blocks, int blockSize)
{
    const juce::AudioBuffer<float> silence (2, blockSize);
    juce::int64 first = 0;

    for (const auto& block : blocks)
    {
        writer.write ({ first, silence, block });
        first += blockSize;
    }

    writer.finish();
}

juce::AudioBuffer<float> ramp()
{
    juce::AudioBuffer<float> audio (2, 4001);

    for (auto i = 0; i <= 4000; ++i)
    {
        audio.setSample (0, i, -1.0f + static_cast<float> (i) / 2000.0f);
        audio.setSample (1, i, 0.00001f * static_cast<float> (i));
    }

    return audio;
}

juce::MidiFile readMidi (const juce::File& file)
{
    juce::FileInputStream stream (file);
    juce::MidiFile midi;
    EXPECT_TRUE (midi.readFrom (stream, false));
    return midi;
}
} // namespace

TEST (WavFileWriter, KeepsSamplesWithinHalfAStepOfTheFormat)
{
    const ScratchFolder scratch;
    const auto audio = ramp();

    for (const auto& [bits, tolerance] :
         { std::pair (16, std::exp2 (-16)), std::pair (24, std::exp2 (-24)), std::pair (32, 0.0) })
    {
        WavFileWriter writer (scratch.file ("sound.wav"), 96000.0, 2, bits);
        writer.write ({ 0, audio, {} });
        writer.write ({ audio.getNumSamples(), audio, {} });
        writer.finish();

        const std::unique_ptr<juce::AudioFormatReader> reader (
            juce::WavAudioFormat().createReaderFor (new juce::FileInputStream (scratch.file ("sound.wav")),
                                                    true));
        ASSERT_NE (reader, nullptr);
        EXPECT_EQ (reader->sampleRate, 96000.0);
        EXPECT_EQ (static_cast<int> (reader->bitsPerSample), bits);
        EXPECT_EQ (reader->lengthInSamples, 2 * audio.getNumSamples());
        EXPECT_EQ (writer.getNumClipped(), bits == 32 ? 0 : 2) << "1.0 is one step above full scale";

        juce::AudioBuffer<float> read (2, audio.getNumSamples());
        reader->read (&read, 0, audio.getNumSamples(), audio.getNumSamples(), true, true);

        for (auto channel = 0; channel < 2; ++channel)
            for (auto i = 0; i < audio.getNumSamples() - 1; ++i)
                ASSERT_NEAR (read.getSample (channel, i), audio.getSample (channel, i), tolerance)
                    << bits << " " << i;
    }
}

TEST (JsonLinesWriter, WritesOneLineForEachEventInOrder)
{
    const ScratchFolder scratch;
    JsonLinesWriter writer (scratch.file ("events.jsonl"));
    writeBlocks (writer, { events ("on 60 @3, off 60 v7 @3"), events ("hex F0 01 F7 @0") }, 512);

    EXPECT_EQ (scratch.file ("events.jsonl").loadFileAsString(),
               "{\"sample\": 3, \"bytes\": [144, 60, 100]}\n"
               "{\"sample\": 3, \"bytes\": [128, 60, 7]}\n"
               "{\"sample\": 512, \"bytes\": [240, 1, 247]}\n");
}

TEST (MidiFileWriter, PlacesEventsAndUnrolledTempiWhereTheySound)
{
    const ScratchFolder scratch;
    const SongTimeline timeline (TempoMap ({ { 0.0, 120.0 }, { 2.0, 60.0 } }),
                                 MeterMap ({ { 0.0, 3, 4 } }),
                                 4.0,
                                 8000.0,
                                 Loop { 1.0, 3.0 });
    MidiFileWriter writer (scratch.file ("out.mid"), timeline);

    // one second a block: 2 quarters, 1 quarter, then the loop again
    writeBlocks (writer,
                 { events ("on 60 @4000"),
                   events ("off 60 @0, hex F0 01 F7 @7"),
                   events ("on 62 @5000, hex F8 @5001"),
                   {} },
                 8000);

    const auto midi = readMidi (scratch.file ("out.mid"));
    ASSERT_EQ (midi.getNumTracks(), 1);
    constexpr auto tick = 1.0 / MidiFileWriter::ticksPerQuarter;
    juce::StringArray found;

    for (const auto* holder : *midi.getTrack (0))
    {
        const auto& message = holder->message;
        const auto what = message.isTempoMetaEvent()
                              ? "tempo " + juce::String (60.0 / message.getTempoSecondsPerQuarterNote())
                          : message.isTimeSignatureMetaEvent() ? juce::String ("meter")
                          : message.isEndOfTrackMetaEvent()
                              ? juce::String ("end")
                              : juce::String::toHexString (message.getRawData(), message.getRawDataSize());
        found.add (juce::String (message.getTimeStamp() * tick, 3) + " " + what);
    }

    EXPECT_EQ (
        found.joinIntoString (", "),
        "0.000 meter, 0.000 tempo 120, 1.000 90 3c 64, 2.000 tempo 60, 2.000 80 3c 00, 2.001 f0 01 f7, "
        "3.000 meter, 3.000 tempo 120, 4.000 tempo 60, 4.125 90 3e 64, 5.000 meter, 5.000 tempo 120, "
        "6.000 tempo 60, 6.000 end");
}

TEST (MidiFileWriter, BridgesSilencesLongerThanOneNumberHolds)
{
    const ScratchFolder scratch;
    const SongTimeline timeline ({}, {}, 0.0, 8000.0);
    MidiFileWriter writer (scratch.file ("out.mid"), timeline);
    const juce::AudioBuffer<float> silence (2, 1);
    constexpr juce::int64 tenHours = 8000 * 36000;

    writer.write ({ tenHours, silence, events ("on 60 @0") });
    writer.finish();

    const auto midi = readMidi (scratch.file ("out.mid"));
    const auto& last = midi.getTrack (0)->getEventPointer (midi.getTrack (0)->getNumEvents() - 2)->message;
    EXPECT_TRUE (last.isNoteOn());
    EXPECT_EQ (last.getTimeStamp(), 72000.0 * MidiFileWriter::ticksPerQuarter);
}

TEST (OutputFile, LeavesWhatWasThereUntilItIsComplete)
{
    const ScratchFolder scratch;
    const auto target = scratch.file ("events.jsonl");
    target.replaceWithText ("old");

    {
        JsonLinesWriter writer (target);
        writer.write ({ 0, juce::AudioBuffer<float> (2, 8), events ("on 60 @0") });
        EXPECT_EQ (target.loadFileAsString(), "old");
    }

    EXPECT_EQ (target.loadFileAsString(), "old") << "not finished";
    EXPECT_EQ (scratch.folder.getNumberOfChildFiles (juce::File::findFiles), 1) << "nothing is left behind";
}
