#include "Sequencer/MidiPlayer/Player.h"

#include <bitset>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
constexpr std::size_t reservedBytes = 32768;

using Event = juce::MidiMessageMetadata;
using Iterator = juce::MidiBufferIterator;

/** Tells of the events of one sample, in their order, which are to be moved ahead: the ends, but not those of notes
    that begin at this very sample.
*/
class EarlyEnds
{
public:
    bool contain (const Event& event) noexcept
    {
        const auto isEnd = (event.data[0] & 0xF0) == 0x80;
        const auto pitch = static_cast<std::size_t> (event.data[1]);

        if (! isEnd)
            begun.set (pitch);

        return isEnd && ! begun[pitch];
    }

private:
    std::bitset<128> begun;
};

/** What follows a chord without a gap replaces it: the two must never be held together, however the blocks fall. */
void addEndsFirst (const juce::MidiBuffer& events, juce::MidiBuffer& target) noexcept
{
    for (auto group = events.begin(); group != events.end();)
    {
        const auto sample = (*group).samplePosition;
        auto end = group;

        while (end != events.end() && (*end).samplePosition == sample)
            ++end;

        for (const auto endsNow : { true, false })
            for (auto [event, ends] = std::pair (group, EarlyEnds()); event != end; ++event)
                if (ends.contain (*event) == endsNow)
                    target.addEvent ((*event).data, (*event).numBytes, sample);

        group = end;
    }
}
} // namespace

void Player::prepare (int blockSize)
{
    player.prepare (blockSize);
    scratch.ensureSize (reservedBytes);
}

void Player::run (const ClockSlice& clock, juce::MidiBuffer& notes) noexcept
{
    const auto& song = songs.newest();

    scratch.clear();
    player.run (clock, song != nullptr ? song->slot : fallback, scratch, 0);
    addEndsFirst (scratch, notes);
}

void Player::rest (const ClockSlice& clock) noexcept
{
    scratch.clear();

    if (player.isActive())
        player.run (clock, fallback, scratch, 0);
}

void Player::forget() noexcept
{
    constexpr auto anywhere = 0.0;
    rest ({ std::span (&anywhere, 1) });
}
} // namespace Zn::Sequencer::MidiPlayer
