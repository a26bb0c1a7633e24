#pragma once

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

namespace Zn::PresetTool
{
/** What two documents hold under different values, a line for each in the order of their keys: `Params/Synth/Master:
    "0.00 dB" | "-3.19 dB"`. Empty when they hold the same.

    Steps are told apart by their row and start, not by their place in the list, so that one step more makes one
    difference. What only one of them has stands against a dash.
*/
juce::StringArray differencesBetween (const nlohmann::json& first, const nlohmann::json& second);
} // namespace Zn::PresetTool
