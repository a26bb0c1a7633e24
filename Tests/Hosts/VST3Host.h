#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <memory>
#include <string>

namespace Zn::Tests
{
/** The plug-in as a VST3 host has it, loaded from its bundle. Throws if it cannot be. */
class VST3Host
{
public:
    VST3Host (const std::string& bundle, double sampleRate, int maxBlockSize);
    ~VST3Host();

    void setPlayHead (juce::AudioPlayHead* playHead) { plugin->setPlayHead (playHead); }

    /** Loads a state chunk, and returns when the plug-in has taken it in. */
    void restore (const juce::MemoryBlock& chunk);

    /** The state chunk as the plug-in saves it. */
    juce::MemoryBlock save();

    juce::MidiBuffer run (int numSamples, const juce::MidiBuffer& midi);

    juce::AudioPluginInstance& getPlugin() { return *plugin; }
    const juce::AudioBuffer<float>& getAudio() const { return audio; }

private:
    juce::VST3PluginFormat format;
    std::unique_ptr<juce::AudioPluginInstance> plugin;
    juce::AudioBuffer<float> audio;
};
} // namespace Zn::Tests
