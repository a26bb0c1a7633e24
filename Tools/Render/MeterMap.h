#pragma once

#include <vector>

namespace Zn::Render
{
struct MeterChange
{
    double quarters = 0.0;
    int numerator = 4;
    int denominator = 4;

    double quartersPerBar() const noexcept { return 4.0 * numerator / denominator; }
};

/** Finds bar lines. Before the first change the meter is 4/4; a change starts a new bar where it stands. */
class MeterMap
{
public:
    MeterMap();

    /** Changes in any order; of several at one position the last one counts. */
    explicit MeterMap (std::vector<MeterChange> changes);

    const MeterChange& meterAt (double quarters) const noexcept;

    /** The last bar line not behind the position, in quarter notes. */
    double barStartAt (double quarters) const noexcept;

    /** In order of time, the first at position 0. */
    const std::vector<MeterChange>& getChanges() const noexcept { return changes; }

private:
    std::vector<MeterChange> changes;
};
} // namespace Zn::Render
