#pragma once

namespace Zn::Midi
{
/** The range of pitches that may sound, as the octave range sets it. */
struct PitchLimits
{
    int low = 0, high = 128; // MIDI notes, see who uses them whether high itself is within

    constexpr bool operator== (const PitchLimits&) const = default;
};

constexpr PitchLimits wholeKeyboard;
} // namespace Zn::Midi
