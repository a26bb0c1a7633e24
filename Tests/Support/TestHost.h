#pragma once

#include "Support/TestPlayHead.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zn::Tests
{
/** A message that the host received, at its sample from the beginning of the render. */
struct Received
{
    std::int64_t sample = 0;
    std::array<std::uint8_t, 3> bytes {};

    bool isNoteOn() const noexcept { return (bytes[0] & 0xF0) == 0x90 && bytes[2] > 0; }
    bool isNoteOff() const noexcept { return (bytes[0] & 0xE0) == 0x80 && ! isNoteOn(); }
    bool isPedal() const noexcept { return (bytes[0] & 0xF0) == 0xB0 && bytes[1] == 64; }
    bool isPedalDown() const noexcept { return isPedal() && bytes[2] >= 64; }
    bool isAllSoundOff() const noexcept { return (bytes[0] & 0xF0) == 0xB0 && bytes[1] == 120; }
    int note() const noexcept { return bytes[1]; }
    int channel() const noexcept { return 1 + (bytes[0] & 0x0F); }

    bool operator== (const Received&) const = default;
};

/** Drives a processor as a host does: blocks of any size, a transport, keys at any sample.

    What the processor sends is collected; that it allocates or locks nothing once it is warm is checked in every
    block, and so is that all of it has three bytes, is in order, inside the block and on channel 1: but what passed
    while bypassed is ended on its own channel.
*/
class TestHost
{
public:
    explicit TestHost (juce::AudioProcessor& processorToDrive,
                       double rate = 48000.0,
                       int maxBlockSize = 512,
                       double tempo = 120.0);
    ~TestHost();

    TestHost (const TestHost&) = delete;
    TestHost& operator= (const TestHost&) = delete;

    /** Sends events with the next blocks, at samples counted from now. */
    void send (const juce::MidiBuffer& events);

    /** Renders so many samples, in blocks of the size set. */
    void run (std::int64_t numSamples);

    /** Renders one block of exactly this size. */
    void runBlock (int numSamples);

    /** The size of each block; by default always the largest. */
    std::function<int()> nextBlockSize;

    /** All that came out so far. */
    const std::vector<Received>& getReceived() const noexcept { return received; }
    std::int64_t getPosition() const noexcept { return position; }

    /** The sound of the last block. */
    const juce::AudioBuffer<float>& getAudio() const noexcept { return audio; }

    /** The notes that were started and not ended, by pitch. */
    std::vector<int> getSounding() const;

    /** Whether a sustain pedal was left down, on any channel. */
    bool isPedalDown() const;

    /** What is wrong with the notes received, as "60 struck twice @240, 64 hangs": empty when every note-on has
        its own note-off and the reverse, but for those of a panic.
    */
    std::string unbalanced() const;

    /** The note-ons as "pitch@sample", for readable failures. */
    std::string noteOns() const;

    TestPlayHead playHead;
    bool isBypassed = false;
    bool watchesRealTime = true;

    double sampleRate; // hertz
    const int maxBlockSize;

private:
    void collect (const juce::MidiBuffer& block, int numSamples);

    juce::AudioProcessor& processor;
    juce::AudioBuffer<float> audio;
    juce::MidiBuffer midi, upcoming;
    std::vector<Received> received;
    std::int64_t position = 0; // samples from the beginning
    int numBlocks = 0;
    bool wasBypassed = false;
};
} // namespace Zn::Tests
