#pragma once

#include "Plugin/Transport/LV2Clock.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Zn::Tests
{
/** What a host tells its plug-ins about the transport, at a sample of the coming block. */
struct LV2Message
{
    int sample = 0;
    Audio::LV2Position position;
};

enum class LV2Audio
{
    stereo, // in and out
    none
};

/** The smallest LV2 host that can play the plug-in: its library, its ports, MIDI and transport messages.

    Blocks may be of any length up to the one given. A fault of the plug-in's that keeps it from playing throws.
*/
class LV2Host
{
public:
    LV2Host (const std::string& library,
             double sampleRate,
             int maxBlockSize,
             LV2Audio ports = LV2Audio::stereo);
    ~LV2Host();

    /** Loads a state chunk, and returns when the plug-in has taken it in. */
    void restore (const juce::MemoryBlock& chunk);

    /** The same as a text, which is how a project or a preset holds it. */
    void restore (const std::string& text);

    /** The state chunk as the plug-in saves it. */
    juce::MemoryBlock save();

    /** Tells the plug-in that the blocks to come are rendered as fast as can be. */
    void setFreeWheeling (bool isFreeWheeling);

    /** Plays a block and returns the MIDI that came out. */
    juce::MidiBuffer
    run (int numSamples, const juce::MidiBuffer& midi, const std::vector<LV2Message>& messages);

    /** Plays a block without MIDI and counts the heap calls that the plug-in makes meanwhile. */
    int heapCallsOfRun (int numSamples, const std::vector<LV2Message>& messages);

    /** Empty for a plug-in without audio. */
    const std::vector<float>& audioOutput (int channel) const;

    /** What the last block has told, in samples. */
    float getLatency() const;

    /** Bypasses the plug-in from the next block on, or no longer. */
    void setEnabled (bool shouldBeEnabled);

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation;
};
} // namespace Zn::Tests
