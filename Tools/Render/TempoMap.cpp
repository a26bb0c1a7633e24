#include "TempoMap.h"

#include <algorithm>

namespace Zn::Render
{
namespace
{
constexpr double secondsPerMinute = 60.0;

/** Index of the last element not above the value, the first element if there is none. */
template <typename Range, typename Projection>
std::size_t lastNotAbove (const Range& range, double value, Projection projection)
{
    const auto above = std::ranges::upper_bound (range, value, {}, projection);
    return static_cast<std::size_t> (std::max<std::ptrdiff_t> (0, above - range.begin() - 1));
}
} // namespace

TempoMap::TempoMap() : TempoMap (std::vector<TempoChange> {}) {}

TempoMap::TempoMap (std::vector<TempoChange> given)
{
    std::ranges::stable_sort (given, {}, &TempoChange::quarters);
    changes.push_back ({});

    for (const auto& change : given)
    {
        if (change.quarters <= changes.back().quarters)
            changes.back().bpm = change.bpm;
        else
            changes.push_back (change);
    }

    seconds.push_back (0.0);

    for (std::size_t i = 1; i < changes.size(); ++i)
    {
        const auto quarters = changes[i].quarters - changes[i - 1].quarters;
        seconds.push_back (seconds.back() + quarters * secondsPerMinute / changes[i - 1].bpm);
    }
}

double TempoMap::secondsFromQuarters (double quarters) const noexcept
{
    const auto i = indexAt (quarters);
    return seconds[i] + (quarters - changes[i].quarters) * secondsPerMinute / changes[i].bpm;
}

double TempoMap::quartersFromSeconds (double time) const noexcept
{
    const auto i = lastNotAbove (seconds, time, std::identity {});
    return changes[i].quarters + (time - seconds[i]) * changes[i].bpm / secondsPerMinute;
}

double TempoMap::bpmAt (double quarters) const noexcept
{
    return changes[indexAt (quarters)].bpm;
}

std::size_t TempoMap::indexAt (double quarters) const noexcept
{
    return lastNotAbove (changes, quarters, &TempoChange::quarters);
}
} // namespace Zn::Render
