#pragma once

#include "Foundation/BlockSlice.h"

#include <span>

namespace Zn::Sequencer
{
/** The clock over a run of samples: what the transport tells the pattern engine, as a plain value.

    Positions are quarter notes from the start of the song, one for each sample; they may go back inside a
    slice where the host's loop wraps. The referenced positions live as long as the block. Thread: audio.
*/
struct ClockSlice
{
    std::span<const double> ppq; // quarter notes, one a sample
    bool isPlaying = false;
    bool jumped = false;       // the first position does not continue the previous block's last
    bool stateChanged = false; // playing differs from the previous block
    double ppqPerSample = 0.0; // while the clock moves; 0 if unknown

    int size() const noexcept { return static_cast<int> (ppq.size()); }

    /** A part of this slice. The two flags tell about this slice's first sample and go only with it. */
    ClockSlice part (BlockSlice run) const noexcept
    {
        const auto isFirst = run.start == 0;

        return { ppq.subspan (static_cast<std::size_t> (run.start), static_cast<std::size_t> (run.length)),
                 isPlaying,
                 isFirst && jumped,
                 isFirst && stateChanged,
                 ppqPerSample };
    }
};
} // namespace Zn::Sequencer
