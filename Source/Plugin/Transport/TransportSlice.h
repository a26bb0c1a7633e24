#pragma once

#include "Foundation/BlockSlice.h"
#include "Plugin/Transport/InternalPlayHead.h"
#include "Plugin/Transport/PlayHeadTransportView.h"
#include "Sequencer/ClockSlice.h"

#include <cstdint>

namespace Zn::Audio
{
/** The transport over a run of samples of the block, handed from stage to stage by reference.

    The two flags tell about the block's first sample: a slice that starts later has neither. Not copied, as
    the play head inside answers for the slice it sits in. Thread: audio.
*/
struct TransportSlice
{
    /** The whole block that the clock was last updated for. */
    explicit TransportSlice (const InternalPlayHead& clock) noexcept;

    /** A part of that block; what reaches beyond it is cut off. */
    TransportSlice (const InternalPlayHead& clock, BlockSlice run) noexcept;

    TransportSlice (const TransportSlice&) = delete;
    TransportSlice& operator= (const TransportSlice&) = delete;

    /** A part of this slice, counted from its first sample. */
    TransportSlice part (BlockSlice run) const noexcept;

    bool isPlaying() const noexcept { return view->isPlaying(); }

    /** The same as the plain value that the pattern engine takes. */
    Sequencer::ClockSlice clock() const noexcept;

    bool jumped = false;       // the block does not continue the one before
    bool stateChanged = false; // playing differs from the block before
    const InternalPlayHead* view = nullptr;
    std::int32_t offset = 0; // samples from the block's first
    std::int32_t length = 0; // samples
    PlayHeadTransportView playHead { *this };
};
} // namespace Zn::Audio
