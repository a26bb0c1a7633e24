#include "Sequencer/MidiPlayer/Player.h"

#include <cmath>
#include <cstdlib>
#include <vector>

namespace
{
using Zn::Sequencer::MidiPlayer::readSong;
using Zn::Sequencer::MidiPlayer::Song;

bool canBePlayed (const Song& song)
{
    const auto length = song.slot.playLength;
    auto last = 0.0;

    for (const auto& note : song.slot.events.notes)
    {
        const auto isInside = note.time.start >= last && note.time.start < length && note.time.length > 0.0;
        const auto isNote = note.event.noteNum >= 0 && note.event.noteNum < 128;

        if (! isInside || ! isNote)
            return false;

        last = note.time.start;
    }

    return song.numBars >= 1 && std::isfinite (length) && length > 0.0;
}

/** The first beats in blocks, and what it leaves sounding. */
void play (const Song& song)
{
    constexpr auto blockSize = 64, numBlocks = 32;
    Zn::Sequencer::SlotPlayer player;
    player.prepare (blockSize);
    std::vector<double> positions (blockSize);
    juce::MidiBuffer notes;

    for (auto block = 0; block < numBlocks; ++block)
    {
        for (auto i = 0; i < blockSize; ++i)
            positions[static_cast<std::size_t> (i)] = (block * blockSize + i) / 256.0;

        player.run ({ positions, true, block == 0, block == 0, 1.0 / 256.0 }, song.slot, notes, 0);
    }

    player.run ({ positions, false, false, true, 0.0 }, Zn::Sequencer::fallback, notes, 0);

    if (player.isActive())
        std::abort();
}
} // namespace

/** Whatever a file holds, what is understood of it can be played, and ends. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    if (const auto song = readSong (std::as_bytes (std::span (data, size))))
    {
        if (! canBePlayed (*song))
            std::abort();

        play (*song);
    }

    return 0;
}
