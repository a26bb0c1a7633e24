#pragma once

#include "Sequencer/MidiPlayer/Controller.h"
#include "Sequencer/SlotPlayer.h"

namespace Zn::Sequencer::MidiPlayer
{
/** Plays the chosen file in time with the clock: song position 0 is the file's beginning, and behind its last bar it
    begins again. Where the clock jumps or loops, the notes that last at the new place are caught up with.
    Thread: audio.
*/
class Player
{
public:
    explicit Player (Controller& controller) : songs (controller.getSongs()) {}

    /** Reserves for blocks of this size. Thread: prepare. */
    void prepare (int blockSize);

    /** Adds the notes of a slice of the clock to a buffer; at each sample what ends comes ahead of what begins. */
    void run (const ClockSlice& clock, juce::MidiBuffer& notes) noexcept;

    /** Forgets what sounds, instead of run(); whoever let it through ends it. */
    void rest (const ClockSlice& clock) noexcept;

    /** The same where no clock runs: the next run catches up with what lasts. */
    void forget() noexcept;

private:
    SongRing::Reader songs;
    SlotPlayer player;
    juce::MidiBuffer scratch;
};
} // namespace Zn::Sequencer::MidiPlayer
