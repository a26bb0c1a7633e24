#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <string>
#include <vector>

namespace Zn::Tests
{
/** Counts of note-ons and note-offs that do not match, as "60: 2 on 1 off, ..."; empty when each pitch got as
    many of one as of the other.
*/
std::string unbalanced (const juce::MidiBuffer& events);

/** The pitches whose last event is a note-on, as "60 64 67"; empty when nothing hangs. */
std::string stillSounding (const juce::MidiBuffer& events);

/** What a player might do, and what he should not: keys struck twice or lifted without a press, note-ons of
    velocity 0, the pedal, several events in one sample.
*/
struct RandomPlaying
{
    int lowestNote = 0, highestNote = 127;
    bool usesPedal = false;
};

/** Always the same stream of 4000 samples for a seed. It ends with the pedal up and all keys released. */
juce::MidiBuffer randomPlaying (int seed, const RandomPlaying& playing = {});

/** Lengths of blocks that cut so many samples at random. */
std::vector<int> randomBlocks (int seed, int numSamples);

/** Sends events block by block through process (juce::MidiBuffer&), and joins what it leaves in the buffers.
*/
template <typename Process>
juce::MidiBuffer inBlocks (const juce::MidiBuffer& input, const std::vector<int>& lengths, Process&& process)
{
    juce::MidiBuffer output;
    auto start = 0;

    for (const auto length : lengths)
    {
        juce::MidiBuffer block;
        block.addEvents (input, start, length, -start);
        process (block);
        output.addEvents (block, 0, -1, start);
        start += length;
    }

    return output;
}
} // namespace Zn::Tests
