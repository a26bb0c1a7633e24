#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::Sequencer
{
/** How far the off-beats are moved, from -200% (early) to 200% (late). */
class SwingParam : public juce::AudioParameterInt
{
public:
    static constexpr int minimum = -200, maximum = 200; // percent

    SwingParam (const juce::ParameterID& identifier, const juce::String& displayName);
};
} // namespace Zn::Sequencer
