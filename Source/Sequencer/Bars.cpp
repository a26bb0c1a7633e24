#include "Sequencer/Bars.h"

#include <algorithm>
#include <numeric>

namespace Zn::Sequencer
{
double Bar::length() const noexcept
{
    constexpr auto quartersInWhole = 4.0;

    return num < 1 || denum < 1 ? 0.0 : num * quartersInWhole / denum;
}

void Bar::reflect (Reflector& r)
{
    r.add ("num", num);
    r.add ("denum", denum);
}

double Bars::length() const noexcept
{
    const auto add = [] (double sum, const Bar& bar) { return sum + bar.length(); };

    return std::min (std::accumulate (list.begin(), list.end(), 0.0, add), longestTime);
}

void Bars::reflect (Reflector& r)
{
    r.addChild ("Bars", ChildContainerSerializer (list, false, maxBars));
}
} // namespace Zn::Sequencer
