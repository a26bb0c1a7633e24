#pragma once

#include "Plugin/Transport/LV2Clock.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Zn::Test
{
/** What a host tells its plug-ins about the transport, at a sample of the coming block. */
struct LV2Message
{
    int sample = 0;
    Audio::LV2Position position;
};

/** The smallest LV2 host that can play the plug-in: its library, its ports, MIDI and transport messages.

    Blocks may be of any length up to the one given. A fault of the plug-in's that keeps it from playing throws.
*/
class LV2Host
{
public:
    LV2Host (const std::string& library, double sampleRate, int maxBlockSize);
    ~LV2Host();

    /** Loads a state chunk, and returns when the plug-in has taken it in. */
    void restore (const juce::MemoryBlock& chunk);

    /** The state chunk as the plug-in saves it. */
    juce::MemoryBlock save();

    /** Plays a block and returns the MIDI that came out. */
    juce::MidiBuffer
    run (int numSamples, const juce::MidiBuffer& midi, const std::vector<LV2Message>& messages);

    /** Plays a block without MIDI and counts the heap calls that the plug-in makes meanwhile. */
    int heapCallsOfRun (int numSamples, const std::vector<LV2Message>& messages);

    const std::vector<float>& audioOutput (int channel) const;

private:
    struct Implementation;
    std::unique_ptr<Implementation> implementation;
};
} // namespace Zn::Test
