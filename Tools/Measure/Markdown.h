#pragma once

#include <juce_core/juce_core.h>

#include <initializer_list>

namespace Zn::Measure
{
/** A gain in decibels. What lies below the floor is only said to: noise of rounding differs between machines. */
juce::String decibels (double gain, int places = 0, double floorDecibels = -100.0);

/** A ratio of powers in decibels. */
juce::String decibelsOfPower (double ratio);

juce::String number (double value, int places);

/** One line of a table. */
juce::String row (std::initializer_list<juce::String> cells);

/** The two lines above a table: its heads, the first of which stands left and all others right. */
juce::String tableHead (std::initializer_list<juce::String> heads);
} // namespace Zn::Measure
