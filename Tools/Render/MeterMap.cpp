#include "MeterMap.h"

#include <algorithm>
#include <cmath>

namespace Zn::Render
{
MeterMap::MeterMap() : MeterMap (std::vector<MeterChange> {}) {}

MeterMap::MeterMap (std::vector<MeterChange> given)
{
    std::ranges::stable_sort (given, {}, &MeterChange::quarters);
    changes.push_back ({});

    for (const auto& change : given)
    {
        if (change.quarters <= changes.back().quarters)
            changes.back() = { changes.back().quarters, change.numerator, change.denominator };
        else
            changes.push_back (change);
    }
}

const MeterChange& MeterMap::meterAt (double quarters) const noexcept
{
    const auto above = std::ranges::upper_bound (changes, quarters, {}, &MeterChange::quarters);
    return above == changes.begin() ? changes.front() : *std::prev (above);
}

double MeterMap::barStartAt (double quarters) const noexcept
{
    constexpr double roundingQuarters =
        1.0e-9; // a position meant to be on a bar line may be a hair before it

    const auto& meter = meterAt (quarters);
    const auto bars = std::floor ((quarters - meter.quarters + roundingQuarters) / meter.quartersPerBar());
    return meter.quarters + bars * meter.quartersPerBar();
}
} // namespace Zn::Render
