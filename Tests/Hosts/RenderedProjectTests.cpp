#include "Hosts/Song.h"

#include "Support/MidiText.h"
#include "Support/ScratchFolder.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <gtest/gtest.h>

#include <fstream>

namespace Zn::Tests
{
namespace
{
const Song song { .numBlocks = 2 * blocksPerSecond };
constexpr auto numSamples = 2 * blocksPerSecond * blockSize;

/** A project that nobody begins with: half of the steps, transposed, with a bright and swinging sound. */
juce::MemoryBlock projectFrom (VST3Host& host)
{
    auto project = documentIn (host.save());
    auto& steps = project["Patterns"]["Patterns"][0]["Pattern"]["Steps"];

    for (std::size_t i = 1; i < steps.size(); i += 2)
        steps[i]["enabled"] = false;

    project["Patterns"]["Sequencer"]["Transport"]["BPM"]["value"] = "120"; // as the song will have it
    project["FlatParams"][0] = (7.0 + 12.0) / 24.0;                        // Transpose
    project["FlatParams"][5] = 0.61;                                       // Swing
    project["FlatParams"][30] = 0.8123;                                    // Filter-Cutoff

    juce::MemoryBlock chunk;
    Audio::Plugin::StateChunk::write (project.dump(), chunk);
    host.restore (chunk);
    return host.save();
}

/** The chord that hosts play, for longer than is compared. */
void writeSong (const juce::File& file)
{
    juce::MidiMessageSequence track;

    for (const auto key : { 60, 64, 67 })
    {
        track.addEvent (juce::MidiMessage::noteOn (1, key, juce::uint8 (100)), 0);
        track.addEvent (juce::MidiMessage::noteOff (1, key), 6 * 960); // three seconds
    }

    juce::MidiFile midi;
    midi.setTicksPerQuarterNote (960);
    midi.addTrack (track);
    juce::FileOutputStream output (file);
    ASSERT_TRUE (midi.writeTo (output));
}

void render (const juce::StringArray& arguments)
{
    juce::ChildProcess renderer;
    auto command = arguments;
    command.insert (0, VORNEL_RENDER);
    ASSERT_TRUE (renderer.start (command));
    const auto complaints = renderer.readAllProcessOutput();
    ASSERT_EQ (renderer.getExitCode(), 0u) << complaints;
}

Performance performanceIn (const juce::File& audioFile, const juce::File& eventFile)
{
    Performance performance;
    std::ifstream lines (eventFile.getFullPathName().toStdString());

    for (std::string line; std::getline (lines, line);)
    {
        const auto event = nlohmann::json::parse (line);
        const auto bytes = event.at ("bytes").get<std::vector<juce::uint8>>();
        performance.events.addEvent (bytes.data(), static_cast<int> (bytes.size()), event.at ("sample"));
    }

    juce::WavAudioFormat wav;
    juce::AudioBuffer<float> audio (2, numSamples);
    const std::unique_ptr<juce::AudioFormatReader> reader (
        wav.createReaderFor (audioFile.createInputStream().release(), true));
    EXPECT_TRUE (reader != nullptr && reader->read (&audio, 0, numSamples, 0, true, true));
    performance.sound.assign (audio.getReadPointer (0), audio.getReadPointer (0) + numSamples);
    return performance;
}

/** As far as the keys are held in both. */
Performance beginningOf (Performance performance)
{
    juce::MidiBuffer events;
    events.addEvents (performance.events, 0, numSamples, 0);
    performance.events.swapWith (events);
    performance.sound.resize (numSamples);
    return performance;
}
} // namespace

TEST (RenderedProject, SoundsLikeTheHostWhoseProjectItLoadsAndGivesItBack)
{
    const ScratchFolder scratch;
    const auto midi = scratch.file ("song.mid"), state = scratch.file ("state"), back = scratch.file ("back");
    const auto wav = scratch.file ("out.wav"), events = scratch.file ("out.jsonl");

    VST3Host host { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    const auto project = projectFrom (host);
    ASSERT_TRUE (state.replaceWithData (project.getData(), project.getSize()));
    writeSong (midi);

    render ({ "--state-in",
              state.getFullPathName(),
              "--state-out",
              back.getFullPathName(),
              "--block",
              juce::String (blockSize),
              "--wav-bits",
              "32",
              "--out-wav",
              wav.getFullPathName(),
              "--out-events",
              events.getFullPathName(),
              midi.getFullPathName() });

    const auto hosted = beginningOf (play (host, song));
    const auto rendered = beginningOf (performanceIn (wav, events));
    EXPECT_GE (hosted.onsets.size(), 8u);
    EXPECT_EQ (text (rendered.events), text (hosted.events));
    EXPECT_TRUE (sameSound (rendered, hosted));

    juce::MemoryBlock returned;
    ASSERT_TRUE (back.loadFileAsData (returned));
    VST3Host other { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    other.restore (returned);
    EXPECT_EQ (nlohmann::json::diff (documentIn (project), documentIn (other.save())).dump(), "[]");
    EXPECT_TRUE (sameSound (beginningOf (play (other, song)), hosted));
}
} // namespace Zn::Tests
