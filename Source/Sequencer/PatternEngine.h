#pragma once

#include "Sequencer/PatternFrame.h"
#include "Sequencer/SlotPlayer.h"
#include "Sequencer/SlotSwitch.h"

#include <array>
#include <optional>

namespace Zn::Sequencer
{
/** Turns the drawn patterns into note messages: one of eight patterns is heard, and follows the clock.

    The block is played in any number of calls, one slice of it after the other; a slice ends wherever something
    else must happen in between, such as a key that changes what a row means. Messages name rows of the drawing,
    from which the caller makes pitches. Note-offs may come for rows that never sounded: a step that its chance
    kept silent is ended like any other.

    Nothing hangs: a change of slot, an edited pattern, a jump and a stop all end what they no longer hold, at
    the first sample played after them. Thread: audio.
*/
class PatternEngine
{
public:
    PatternEngine();

    /** Reserves for a block size; what sounds goes on. Thread: prepare. */
    void prepare (int blockSize);

    /** Makes chance and velocity spread repeatable. Otherwise each engine draws its own. */
    void setSeed (std::int64_t seed) noexcept;

    /** Starts the pattern that is heard from its beginning at the first sample of the next call, unless that
        call changes the slot there.
    */
    void requestRestart() noexcept { pendingRestart = heard; }

    /** Plays a slice of the clock: adds its row messages to a buffer, at the samples of the slice plus an
        offset, and returns its length. An empty slice changes nothing. The frame's handles may be null, which
        is silence.
    */
    int run (const ClockSlice& clock,
             const PatternFrame& frame,
             juce::MidiBuffer& rows,
             int sampleOffset = 0) noexcept;

    /** The marks that the heard slot passed in the last call, by samples of the buffer. */
    std::span<const FiredMark> getFiredMarks() const noexcept { return playerOf (heard).getFiredMarks(); }

private:
    void arrive (const ClockSlice& clock) noexcept;
    void runHeard (const ClockSlice& clock,
                   const PatternFrame& frame,
                   juce::MidiBuffer& rows,
                   int offset) noexcept;

    SlotPlayer& playerOf (int slot) noexcept { return players[static_cast<std::size_t> (slot)]; }
    const SlotPlayer& playerOf (int slot) const noexcept { return players[static_cast<std::size_t> (slot)]; }

    std::array<SlotPlayer, numSlots> players;
    SlotSwitch slotSwitch;
    LiveSlots unsharedSlots; // stands in while no record is published
    int heard = 0;
    std::optional<int> pendingRestart; // the slot to start again
};
} // namespace Zn::Sequencer
