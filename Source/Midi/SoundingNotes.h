#pragma once

#include "Midi/EventWriter.h"

#include <bitset>

namespace Zn::Midi
{
/** Which notes of a stream sound, on each channel. Thread: audio. */
class SoundingNotes
{
public:
    /** Follows notes; all else leaves it as it is. */
    void follow (const Event& event) noexcept;

    /** Ends all of them at one sample. */
    void endAll (EventWriter& out, int sample) noexcept;

    /** Forgets them without an end. */
    void forget() noexcept { sounding = {}; }

private:
    static constexpr std::size_t numChannels = 16;

    std::array<std::bitset<128>, numChannels> sounding;
};
} // namespace Zn::Midi
