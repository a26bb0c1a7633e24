#include "Hosts/VST3Host.h"

#include "Plugin/Bases/StateChunk.h"
#include "Support/ScratchFolder.h"
#include "Support/TestPlayHead.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>

namespace Zn::Tests
{
namespace
{
constexpr auto blockSize = 256;
constexpr auto numBlocks = 375; // two seconds
constexpr auto numSamples = blockSize * numBlocks;
constexpr auto sampleRate = 48000.0;

const auto chord = { 60, 64, 67 };

/** A line for each note at its sample, in the order of the output. */
using Notes = std::vector<std::string>;

struct Sound
{
    Notes notes;
    juce::AudioBuffer<float> audio { 2, numSamples };
};

void addNote (Notes& notes, const juce::MidiMessage& message, int sample)
{
    if (message.isNoteOnOrOff() && sample < numSamples)
        notes.push_back ((juce::String (sample) + " " + message.getDescription()).toStdString());
}

nlohmann::json documentIn (const juce::MemoryBlock& chunk)
{
    return nlohmann::json::parse (
        Audio::Plugin::StateChunk::read (chunk.getData(), static_cast<int> (chunk.getSize())));
}

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

Sound playedBy (VST3Host& host)
{
    Sound sound;
    TestPlayHead playHead { sampleRate, 120.0 };
    host.setPlayHead (&playHead);

    for (auto block = 0; block < numBlocks; ++block)
    {
        juce::MidiBuffer keys;

        if (block == 0)
            for (const auto key : chord)
                keys.addEvent (juce::MidiMessage::noteOn (1, key, juce::uint8 (100)), 0);

        for (const auto event : host.run (blockSize, keys))
            addNote (sound.notes, event.getMessage(), block * blockSize + event.samplePosition);

        for (auto channel = 0; channel < 2; ++channel)
            sound.audio.copyFrom (channel, block * blockSize, host.getAudio(), channel, 0, blockSize);

        playHead.advance (blockSize);
    }

    host.setPlayHead (nullptr);
    return sound;
}

void writeSong (const juce::File& file)
{
    juce::MidiMessageSequence track;

    for (const auto key : chord)
    {
        track.addEvent (juce::MidiMessage::noteOn (1, key, juce::uint8 (100)), 0);
        track.addEvent (juce::MidiMessage::noteOff (1, key), 6 * 960); // three seconds
    }

    juce::MidiFile song;
    song.setTicksPerQuarterNote (960);
    song.addTrack (track);
    juce::FileOutputStream output (file);
    ASSERT_TRUE (song.writeTo (output));
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

Sound soundIn (const juce::File& audioFile, const juce::File& eventFile)
{
    Sound sound;
    std::ifstream lines (eventFile.getFullPathName().toStdString());

    for (std::string line; std::getline (lines, line);)
    {
        const auto event = nlohmann::json::parse (line);
        const auto bytes = event.at ("bytes").get<std::vector<juce::uint8>>();
        addNote (sound.notes, { bytes.data(), static_cast<int> (bytes.size()) }, event.at ("sample"));
    }

    juce::WavAudioFormat wav;
    const std::unique_ptr<juce::AudioFormatReader> reader (
        wav.createReaderFor (audioFile.createInputStream().release(), true));
    EXPECT_TRUE (reader != nullptr && reader->read (&sound.audio, 0, numSamples, 0, true, true));
    return sound;
}

float largestDifference (const juce::AudioBuffer<float>& first, const juce::AudioBuffer<float>& second)
{
    auto difference = first;

    for (auto channel = 0; channel < 2; ++channel)
        difference.addFrom (channel, 0, second, channel, 0, numSamples, -1.0f);

    return difference.getMagnitude (0, numSamples);
}
} // namespace

TEST (RenderedProject, SoundsLikeTheHostWhoseProjectItLoadsAndGivesItBack)
{
    const ScratchFolder scratch;
    const auto song = scratch.file ("song.mid"), state = scratch.file ("state"), back = scratch.file ("back");
    const auto wav = scratch.file ("out.wav"), events = scratch.file ("out.jsonl");

    VST3Host host { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    const auto project = projectFrom (host);
    ASSERT_TRUE (state.replaceWithData (project.getData(), project.getSize()));
    writeSong (song);

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
              song.getFullPathName() });

    const auto hosted = playedBy (host);
    const auto rendered = soundIn (wav, events);
    EXPECT_GT (hosted.notes.size(), 10u);
    EXPECT_EQ (rendered.notes, hosted.notes);
    EXPECT_GT (hosted.audio.getMagnitude (0, numSamples), 0.05f);
    EXPECT_LT (largestDifference (rendered.audio, hosted.audio), 1e-6f);

    juce::MemoryBlock returned;
    ASSERT_TRUE (back.loadFileAsData (returned));
    VST3Host other { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    other.restore (returned);
    EXPECT_EQ (nlohmann::json::diff (documentIn (project), documentIn (other.save())).dump(), "[]");
    EXPECT_LT (largestDifference (playedBy (other).audio, hosted.audio), 1e-6f);
}
} // namespace Zn::Tests
