#pragma once

#include "Plugin/Bases/StateChunk.h"

#include <juce_audio_processors/juce_audio_processors.h>
#include <nlohmann/json.hpp>

#include <string>

namespace Zn::Audio::Plugins::Vornel
{
inline juce::MemoryBlock save (juce::AudioProcessor& processor)
{
    juce::MemoryBlock chunk;
    processor.getStateInformation (chunk);
    return chunk;
}

inline void restore (juce::AudioProcessor& processor, const juce::MemoryBlock& chunk)
{
    processor.setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
}

inline std::string textIn (const juce::MemoryBlock& chunk)
{
    return std::string (
        Plugin::StateChunk::read (chunk.getData(), static_cast<int> (chunk.getSize())).data());
}

inline nlohmann::json documentIn (const juce::MemoryBlock& chunk)
{
    return nlohmann::json::parse (textIn (chunk), nullptr, false);
}
} // namespace Zn::Audio::Plugins::Vornel
