#include "Midi/PitchTableRing.h"

namespace Zn::Midi
{
PitchTableRing::Writer::Writer (PitchTableRing& owner) noexcept
    : frames (owner.ring.getWriter()), changes (owner.changeCount)
{}

void PitchTableRing::Writer::publish (const RowToPitchTable& table, PitchLimits limits) noexcept
{
    frames.publish ([&] (RowToPitchTable& frame) {
        frame = table;
        frame.setLimits (limits);
    });

    ++changes;
}

PitchTableRing::Reader::Reader (PitchTableRing& owner) noexcept
    : frames (owner.ring.getReader()), changes (owner.changeCount)
{}
} // namespace Zn::Midi
