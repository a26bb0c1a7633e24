#pragma once

#include "Sequencer/PatternData.h"

#include <cstddef>
#include <memory>
#include <span>

namespace Zn::Sequencer::MidiPlayer
{
constexpr std::size_t largestFile = 1024 * 1024; // bytes

/** A MIDI file made ready to be played over and over. Constant once it is made; the message thread frees it. */
struct Song
{
    /** Its rows are pitches. It lasts whole bars, at least one. */
    RenderedSlot slot;

    double barLength = 4.0; // quarter notes
    int numBars = 1;
};

/** Reads a MIDI file: the notes of all its tracks as one, at their ticks, whatever its tempo. Bars are those of its
    first time signature.

    Of notes on one pitch the later one takes over from the earlier. A note that never ends lasts to the end of the
    file; one without a length is left out, and so is what is too late or too much. Null for what is damaged, counts
    in SMPTE frames, is too large, or has no notes. Thread: message.
*/
std::shared_ptr<const Song> readSong (std::span<const std::byte> file);
} // namespace Zn::Sequencer::MidiPlayer
