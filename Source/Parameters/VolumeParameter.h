#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::Audio
{
/** A level: the audio side reads a linear gain, the user sees decibels ("-7.19 dB"). -100 dB and below is
    silence, gain 0, and so is a text that stands for no finite level.
*/
class VolumeParameter : public juce::AudioParameterFloat
{
public:
    /** All levels in decibels; `middleDecibels` is where the control's middle stands. */
    VolumeParameter (const juce::ParameterID& identifier,
                     const juce::String& displayName,
                     float minDecibels,
                     float maxDecibels,
                     float defaultDecibels,
                     float middleDecibels);

    static float gainFromDecibels (double decibels) noexcept;
    static juce::String textFromGain (float gain);
    static float gainFromText (const juce::String& text);
};
} // namespace Zn::Audio
