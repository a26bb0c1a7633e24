#pragma once

#include <algorithm>
#include <iterator>
#include <span>

namespace Zn::Sequencer
{
/** The sample at which a run passes a position: the first that is not above it while the next one is, or that
    stands still on it. The run's last sample where there is none, as behind the run's end.

    Positions are one for each sample, at least one, and may fall. Thread: any.
*/
inline int crossingSample (std::span<const double> positions, double x) noexcept
{
    const auto last = positions.size() - 1;

    for (std::size_t i = 0; i < last; ++i)
    {
        const auto here = positions[i];
        const auto next = std::max (positions[i + 1], here);

        if (here == next ? here == x : here <= x && x < next)
            return static_cast<int> (i);
    }

    return static_cast<int> (last);
}

/** The same for positions that never fall, found by halving. Thread: any. */
inline int crossingSampleOfRising (std::span<const double> positions, double x) noexcept
{
    const auto notBelow = std::lower_bound (positions.begin(), positions.end(), x);
    const auto index = static_cast<int> (std::distance (positions.begin(), notBelow));

    if (notBelow != positions.end() && *notBelow == x)
        return index;

    return index > 0 ? index - 1 : static_cast<int> (positions.size()) - 1;
}
} // namespace Zn::Sequencer
