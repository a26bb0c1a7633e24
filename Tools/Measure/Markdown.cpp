#include "Markdown.h"

#include <cmath>

namespace Zn::Measure
{
juce::String number (double value, int places)
{
    const auto unit = std::pow (10.0, places);
    const auto rounded = std::round (value * unit) / unit;
    const auto withoutMinusNought = rounded == 0.0 ? 0.0 : rounded;

    return places > 0 ? juce::String (withoutMinusNought, places)
                      : juce::String (static_cast<int> (withoutMinusNought));
}

juce::String decibels (double gain, int places, double floorDecibels)
{
    const auto value = 20.0 * std::log10 (gain);
    return value >= floorDecibels ? number (value, places) : "< " + number (floorDecibels, 0);
}

juce::String decibelsOfPower (double ratio)
{
    return decibels (std::sqrt (ratio));
}

juce::String row (std::initializer_list<juce::String> cells)
{
    juce::String line ("|");

    for (const auto& cell : cells)
        line << " " << cell << " |";

    return line + "\n";
}

juce::String tableHead (std::initializer_list<juce::String> heads)
{
    juce::String rule ("|---|");

    for (size_t i = 1; i < heads.size(); ++i)
        rule << "---:|";

    return row (heads) + rule + "\n";
}
} // namespace Zn::Measure
