#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Midi
{
// What a block does to its MIDI before anything listens. Thread: audio.

/** Appends a host's messages of exactly three bytes to a buffer of ours, and moves a sample outside the block to its
    nearest end: hosts send such events, and all that follows relies on the range. A block has at least one sample.
*/
void appendThreeByteMessages (const juce::MidiBuffer& source,
                              juce::MidiBuffer& target,
                              int numSamples) noexcept;

// The others collect their result in a scratch buffer and swap it with the one they are given, so that nothing is
// copied twice.

/** Moves every message that has a channel to channel 1. */
void flattenChannels (juce::MidiBuffer& scratch, juce::MidiBuffer& buffer) noexcept;

/** Leaves notes and the sustain pedal (controller 64) in the buffer, and everything else in `others`. */
void splitNotesAndPedal (juce::MidiBuffer& scratch,
                         juce::MidiBuffer& others,
                         juce::MidiBuffer& buffer) noexcept;

/** Adds other events to the buffer, at one sample behind its own, in one pass through both. */
void mergeEvents (juce::MidiBuffer& scratch,
                  juce::MidiBuffer& buffer,
                  const juce::MidiBuffer& others) noexcept;
} // namespace Zn::Midi
