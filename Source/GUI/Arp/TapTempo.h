#pragma once

#include <optional>
#include <vector>

namespace Zn::GUI
{
/** Finds the tempo that somebody taps: the mean of the last taps, which a pause begins anew. */
class TapTempo
{
public:
    static constexpr double longestPause = 2.0; // seconds

    /** At a time in seconds. The tempo in beats a minute, from the second tap on. */
    std::optional<double> tap (double now);

    bool isOver (double now) const noexcept { return ! taps.empty() && now - taps.back() > longestPause; }

private:
    std::vector<double> taps; // seconds
};
} // namespace Zn::GUI
