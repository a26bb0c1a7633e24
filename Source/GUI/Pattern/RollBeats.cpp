#include "GUI/Pattern/RollBeats.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto shortestPattern = 1.0e-3; // quarter notes
constexpr auto usualBar = 4.0;           // quarter notes
constexpr auto roundOff = 1.0e-6;
} // namespace

RollBeats RollBeats::of (const Drawing& drawing)
{
    const auto time = drawing.time.length();
    const auto bar =
        drawing.multiply || drawing.time.list.empty() ? usualBar : drawing.time.list.front().length();

    return { .quarters = std::max (shortestPattern, drawing.multiply ? time * drawing.grid : time),
             .barQuarters = std::max (shortestPattern, bar),
             .grid = drawing.grid };
}

bool RollBeats::isBar (int beat) const noexcept
{
    return std::abs (std::remainder (double (beat), barQuarters)) < roundOff;
}

int RollBeats::strideFor (double pixelsPerBeat, double leastPixels) const noexcept
{
    constexpr auto largest = 1 << 30;
    auto stride = 1;

    while (stride < largest && pixelsPerBeat * stride < leastPixels)
        stride *= 2;

    return stride;
}

juce::String RollBeats::nameOf (double time) const
{
    const auto beat = std::floor (beatOf (time) + roundOff);
    const auto column = std::floor ((time - timeOf (beat)) * grid + roundOff);
    return juce::String (static_cast<int> (beat) + 1) + "."
           + juce::String (std::max (0, static_cast<int> (column)) + 1);
}
} // namespace Zn::GUI
