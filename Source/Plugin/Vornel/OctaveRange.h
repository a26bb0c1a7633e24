#pragma once

#include "Midi/PitchLimits.h"

#include <algorithm>
#include <atomic>

namespace Zn::Audio::Plugins::Vornel
{
/** The octaves that the pattern may reach. Whatever is stored, the limits in use have the lower below the upper. */
struct OctaveRange
{
    static constexpr int highest = 11; // the octave above which no MIDI note lies

    std::atomic<int> low { 0 };        // 0..10; written: GUI, read: audio
    std::atomic<int> high { highest }; // 1..11; written: GUI, read: audio

    Midi::PitchLimits limits() const noexcept
    {
        const auto lower = std::clamp (low.load(), 0, highest - 1);
        const auto upper = std::clamp (high.load(), lower + 1, highest);
        return { 12 * lower, 12 * upper };
    }
};
} // namespace Zn::Audio::Plugins::Vornel
