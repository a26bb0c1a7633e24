#include "GUI/Arp/TapTempo.h"

namespace Zn::GUI
{
std::optional<double> TapTempo::tap (double now)
{
    constexpr std::size_t mostTaps = 9; // two bars

    if (isOver (now))
        taps.clear();
    else if (taps.size() == mostTaps)
        taps.erase (taps.begin());

    taps.push_back (now);
    const auto seconds = taps.back() - taps.front();

    if (seconds <= 0.0)
        return {};

    constexpr auto secondsPerMinute = 60.0;
    return secondsPerMinute * double (taps.size() - 1) / seconds;
}
} // namespace Zn::GUI
