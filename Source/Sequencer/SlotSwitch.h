#pragma once

#include "Sequencer/ClockSlice.h"
#include "Sequencer/LiveSlots.h"

#include <optional>

namespace Zn::Sequencer
{
/** A slot begins to be heard. */
struct SlotChange
{
    int sample = 0; // of the slice
    int slot = 0;
    double anchor = 0.0; // quarter notes, where on the clock the new pattern begins
};

/** Changes the pattern that is heard on the grid of the retrigger quantum, so that it comes in on the beat.

    A slot that is asked for while the transport plays waits for the next multiple of the quantum and begins
    there. It does not wait while the transport stands or live changes are off; then it follows the song's time.
    Thread: audio.
*/
class SlotSwitch
{
public:
    /** Takes over what was asked for, and returns the change that falls into a slice, which is not empty. The
        record already tells of it then.
    */
    std::optional<SlotChange> update (const ClockSlice& clock, LiveSlots& live) noexcept;

private:
    void takePending (const ClockSlice& clock, LiveSlots& live) noexcept;

    bool immediate = false;        // the wanted slot was asked for while the transport stood
    std::optional<double> lastPpq; // of the previous slice's last sample
};
} // namespace Zn::Sequencer
