#include "Sequencer/LoopPositions.h"

#include <algorithm>
#include <cmath>

namespace Zn::Sequencer
{
void fillPositions (std::span<double> positions, std::span<const double> ppq, double anchor) noexcept
{
    std::transform (ppq.begin(), ppq.end(), positions.begin(), [anchor] (double q) { return q - anchor; });
}

void wrapToLoop (std::span<double> positions, double loopLength) noexcept
{
    auto known = 0.0, knownRemainder = 0.0;

    for (auto& position : positions)
    {
        // Two numbers within a factor of two of each other have an exact difference, and a remainder can always
        // be represented: so inside one pass of the loop this sum is the remainder, without an error.
        const auto remainder = knownRemainder + (position - known);
        const auto isExact =
            position >= 0.5 * known && position <= 2.0 * known && remainder >= 0.0 && remainder < loopLength;

        if (! isExact)
        {
            known = position;
            knownRemainder = std::fmod (position, loopLength);
        }

        position = isExact ? remainder : knownRemainder;
    }
}
} // namespace Zn::Sequencer
