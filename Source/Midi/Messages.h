#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace Zn::Midi
{
constexpr int sustainController = 64;
constexpr int lowestValueOfPedalDown = 64;
constexpr int allSoundOffController = 120;
constexpr int allNotesOffController = 123;

/** What our own buffers reserve, so that they never grow in a block: every note of every channel ended at
    once takes 2048 events of 9 bytes, and a block's own events come on top.
*/
constexpr std::size_t reservedBufferBytes = 32768;

/** A message of three bytes: all that notes and controllers need. Thread: any. */
struct ShortMessage
{
    std::array<std::uint8_t, 3> bytes {};

    /** Channel 1..16, note, velocity and the like 0..127; what lies outside is limited. */
    static constexpr ShortMessage noteOn (int channel, int note, int velocity) noexcept
    {
        return make (0x90, channel, note, velocity);
    }

    static constexpr ShortMessage noteOff (int channel, int note, int velocity = 0) noexcept
    {
        return make (0x80, channel, note, velocity);
    }

    static constexpr ShortMessage controller (int channel, int number, int value) noexcept
    {
        return make (0xB0, channel, number, value);
    }

    constexpr bool operator== (const ShortMessage&) const = default;

private:
    static constexpr ShortMessage make (int kind, int channel, int first, int second) noexcept
    {
        return { { static_cast<std::uint8_t> (kind + std::clamp (channel, 1, 16) - 1),
                   static_cast<std::uint8_t> (std::clamp (first, 0, 127)),
                   static_cast<std::uint8_t> (std::clamp (second, 0, 127)) } };
    }
};

// Questions about an event where it lies in its buffer, without a copy.

using Event = juce::MidiMessageMetadata;

inline bool isNote (const Event& event) noexcept
{
    return event.numBytes == 3 && (event.data[0] & 0xE0) == 0x80;
}

/** A note-on of velocity 0 is a note-off. */
inline bool isNoteOn (const Event& event) noexcept
{
    return event.numBytes == 3 && (event.data[0] & 0xF0) == 0x90 && event.data[2] > 0;
}

inline bool isController (const Event& event, int number) noexcept
{
    return event.numBytes == 3 && (event.data[0] & 0xF0) == 0xB0 && event.data[1] == number;
}

/** Of a message of the sustain pedal. */
inline bool isPedalDown (const Event& event) noexcept
{
    return event.data[2] >= lowestValueOfPedalDown;
}

/** Bytes from 0xF0 up are messages without a channel. */
inline bool hasChannel (const Event& event) noexcept
{
    return event.data[0] < 0xF0;
}

inline int channelOf (const Event& event) noexcept
{
    return (event.data[0] & 0x0F) + 1;
}
inline int noteOf (const Event& event) noexcept
{
    return event.data[1] & 0x7F;
}
inline int velocityOf (const Event& event) noexcept
{
    return event.data[2] & 0x7F;
}
} // namespace Zn::Midi
