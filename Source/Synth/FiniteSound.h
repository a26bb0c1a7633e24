#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Audio
{
/** Whether every sample of a block is a number. One that is not would stay in filters and delay lines for ever, so
    whoever finds it there resets them. Thread: audio.
*/
bool isFinite (const juce::AudioBuffer<float>& buffer) noexcept;
} // namespace Zn::Audio
