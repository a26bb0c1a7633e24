#include "Plugin/Transport/TransportSlice.h"

#include <algorithm>

namespace Zn::Audio
{
namespace
{
int blockSizeOf (const InternalPlayHead& clock) noexcept
{
    return static_cast<int> (clock.getPpqBySample().size());
}
} // namespace

TransportSlice::TransportSlice (const InternalPlayHead& clock) noexcept
    : TransportSlice (clock, { 0, blockSizeOf (clock) })
{}

TransportSlice::TransportSlice (const InternalPlayHead& clock, BlockSlice run) noexcept
    : view (&clock)
    , offset (std::clamp (run.start, 0, blockSizeOf (clock)))
    , length (std::clamp (run.length, 0, blockSizeOf (clock) - offset))
{
    jumped = offset == 0 && clock.hasSongJumped();
    stateChanged = offset == 0 && clock.hasStateChanged();
}

TransportSlice TransportSlice::part (BlockSlice run) const noexcept
{
    return { *view, { offset + run.start, std::min (run.length, length - run.start) } };
}

Sequencer::ClockSlice TransportSlice::clock() const noexcept
{
    const auto positions = view->getSongPpq();

    return { positions.subspan (static_cast<std::size_t> (offset), static_cast<std::size_t> (length)),
             view->isPlaying(),
             jumped,
             stateChanged,
             view->getPpqPerSample() };
}
} // namespace Zn::Audio
