#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <array>
#include <cstdint>
#include <span>

namespace Zn::Render
{
/** Counts how often each key of each channel is down, and whether its sustain pedal is. */
class HeldKeys
{
public:
    /** Takes note of a message: its status byte and what follows. Others than notes
        and pedals change nothing.
    */
    void apply (std::uint8_t status, std::span<const std::uint8_t> data) noexcept;

    bool isDown (int channel, int pitch) const noexcept { return presses[indexOf (channel, pitch)] > 0; }

    /** Adds a note-off for every press and a release for every pedal, and forgets them. */
    void releaseAll (juce::MidiBuffer&, int sample);

private:
    static constexpr int channels = 16, pitches = 128;

    static constexpr std::size_t indexOf (int channel, int pitch) noexcept // channel 0..15
    {
        return static_cast<std::size_t> (channel * pitches + pitch);
    }

    std::array<std::uint32_t, channels * pitches> presses {};
    std::array<bool, channels> pedals {};
};
} // namespace Zn::Render
