#include "Hosts/Song.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Zn::Tests
{
namespace
{
constexpr int keys[] = { 60, 64, 67 };
constexpr auto blocksAfterTheKeys = 16;
constexpr auto tempo = 120.0; // quarter notes a minute

juce::MidiBuffer keysPressed (bool pressed)
{
    juce::MidiBuffer midi;

    for (auto key : keys)
        midi.addEvent (pressed ? juce::MidiMessage::noteOn (1, key, juce::uint8 { 100 })
                               : juce::MidiMessage::noteOff (1, key),
                       0);

    return midi;
}

/** Runs the song block by block: process (block size, MIDI in) returns the MIDI that came out. */
template <typename Process>
Performance perform (const Song& song, TestPlayHead& playHead, Process&& process)
{
    Performance performance;
    auto start = 0;

    const auto run = [&] (int size, const juce::MidiBuffer& midi) {
        performance.events.addEvents (process (size, midi), 0, -1, start);
        playHead.advance (size);
        start += size;
    };

    for (auto block = 0; block < song.numBlocks; ++block)
    {
        song.script (playHead, block);
        run (song.blockSizes[static_cast<std::size_t> (block) % song.blockSizes.size()],
             block == 0 ? keysPressed (true) : juce::MidiBuffer {});
    }

    for (const auto event : performance.events)
        if (const auto message = event.getMessage(); message.isNoteOn())
            performance.onsets.push_back ({ event.samplePosition, message.getNoteNumber() });

    run (blockSize, keysPressed (false));

    for (auto block = 0; block < blocksAfterTheKeys; ++block)
        run (blockSize, {});

    return performance;
}

/** Tells an LV2 plug-in where a song is, as one kind of host does. */
class Narrator
{
public:
    Narrator (const TestPlayHead& playHeadToTellOf, Talk talkOfTheHost)
        : playHead (playHeadToTellOf), talk (talkOfTheHost)
    {}

    std::vector<LV2Message> messagesOfBlock (int numSamples)
    {
        const auto samples = std::llround (playHead.samples);
        const auto changed = ! expected || samples != *expected || playHead.isPlaying != wasPlaying
                             || playHead.tempo != lastTempo;

        wasPlaying = playHead.isPlaying;
        lastTempo = playHead.tempo;
        expected = wasPlaying ? samples + numSamples : samples;

        if (! changed && talk != Talk::everyBlock)
            return {};

        return { { 0, position() } };
    }

private:
    Audio::LV2Position position() const
    {
        constexpr auto beatsPerBar = 4.0;
        const auto bar = std::floor (playHead.ppq / beatsPerBar);

        Audio::LV2Position result;
        result.frame = std::round (playHead.samples);
        result.speed = playHead.isPlaying ? 1.0 : 0.0;
        result.beatsPerMinute = playHead.tempo;

        if (talk == Talk::changesInFrames)
            return result;

        result.bar = bar;
        result.barBeat = playHead.ppq - bar * beatsPerBar;
        result.beatsPerBar = beatsPerBar;
        result.beatUnit = 4.0;

        if (talk == Talk::everyBlock)
            result.beat = playHead.ppq;

        return result;
    }

    const TestPlayHead& playHead;
    const Talk talk;
    std::optional<long long> expected;
    bool wasPlaying = false;
    double lastTempo = 0.0;
};
} // namespace

Performance play (LV2Host& host, const Song& song, Talk talk)
{
    TestPlayHead playHead { sampleRate, tempo };
    Narrator narrator { playHead, talk };
    std::vector<float> sound;

    auto performance = perform (song, playHead, [&] (int size, const juce::MidiBuffer& midi) {
        auto output = host.run (size, midi, narrator.messagesOfBlock (size));
        const auto& left = host.audioOutput (0);
        sound.insert (sound.end(),
                      left.begin(),
                      left.begin() + std::min<std::ptrdiff_t> (size, std::ssize (left)));
        return output;
    });
    performance.sound = std::move (sound);
    return performance;
}

Performance play (VST3Host& host, const Song& song)
{
    TestPlayHead playHead { sampleRate, tempo };
    host.setPlayHead (&playHead);
    std::vector<float> sound;

    auto performance = perform (song, playHead, [&] (int size, const juce::MidiBuffer& midi) {
        auto output = host.run (size, midi);

        if (host.getAudio().getNumChannels() > 0)
        {
            const auto* left = host.getAudio().getReadPointer (0);
            sound.insert (sound.end(), left, left + size);
        }

        return output;
    });
    performance.sound = std::move (sound);
    host.setPlayHead (nullptr);
    return performance;
}

testing::AssertionResult sameOnsets (const Performance& first, const Performance& second)
{
    const auto at = [] (const Performance& performance, std::size_t index) {
        return index < performance.onsets.size() ? performance.onsets[index] : Performance::Onset { -1, -1 };
    };

    for (std::size_t i = 0; i < std::max (first.onsets.size(), second.onsets.size()); ++i)
        if (const auto a = at (first, i), b = at (second, i);
            a.pitch != b.pitch || std::abs (a.sample - b.sample) > 1)
            return testing::AssertionFailure()
                   << "onset " << i << " is " << a.pitch << " @" << a.sample << " in one, " << b.pitch << " @"
                   << b.sample << " in the other (-1: none)";

    return testing::AssertionSuccess();
}

testing::AssertionResult sameSound (const Performance& first, const Performance& second)
{
    if (first.sound.size() != second.sound.size())
        return testing::AssertionFailure()
               << first.sound.size() << " and " << second.sound.size() << " samples";

    auto loudest = 0.0f, difference = 0.0f;

    for (std::size_t i = 0; i < first.sound.size(); ++i)
    {
        loudest = std::max (loudest, std::abs (first.sound[i]));
        difference = std::max (difference, std::abs (first.sound[i] - second.sound[i]));
    }

    if (loudest > 0.001f && difference < 1.0e-5f * loudest)
        return testing::AssertionSuccess();

    return testing::AssertionFailure() << "up to " << loudest << ", with a difference of " << difference;
}
} // namespace Zn::Tests
