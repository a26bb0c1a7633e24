#include "Sequencer/MusicalTime.h"

namespace Zn::Sequencer
{
MusicalTime& MusicalTime::operator= (const MusicalTime& other)
{
    bars = other.bars;
    return *this;
}

void MusicalTime::setBar (int index, Bar newBar)
{
    if (index < 0 || index >= static_cast<int> (bars.list.size()))
        return;

    const auto oldBar = std::exchange (bars.list[static_cast<std::size_t> (index)], newBar);

    if (listener && oldBar != newBar)
        listener (index, oldBar, newBar);
}
} // namespace Zn::Sequencer
