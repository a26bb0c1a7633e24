#pragma once

#include <juce_core/juce_core.h>

#include <algorithm>
#include <array>

/** The stereo echo behind the synth: its parameters, and what they mean in seconds and hertz. */
namespace Zn::Audio::AnalogDelay
{
/** The note values that an echo can keep time with, in the order of the choice. A constant of the program. */
struct TimeMap
{
    struct Entry
    {
        const char* name;
        double quarters;
    };

    static constexpr std::array<Entry, 8> entries { {
        { "1/2", 2.0 },
        { "1/4D", 1.5 },
        { "1/4", 1.0 },
        { "1/8D", 0.75 },
        { "1/8", 0.5 },
        { "1/16D", 0.375 },
        { "1/16", 0.25 },
        { "1/32", 0.125 },
    } };

    /** Limited to the entries. Thread: any. */
    static constexpr double quartersOf (int index) noexcept
    {
        return entries[static_cast<std::size_t> (std::clamp (index, 0, int (entries.size()) - 1))].quarters;
    }

    static juce::StringArray names()
    {
        juce::StringArray result;

        for (const auto& entry : entries)
            result.add (entry.name);

        return result;
    }
};
} // namespace Zn::Audio::AnalogDelay
