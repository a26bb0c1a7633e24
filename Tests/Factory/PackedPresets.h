#pragma once

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace Zn::Factory
{
/** A preset as it lies in the program's archive. */
struct Packed
{
    juce::String path;
    std::string bytes;

    juce::String name() const;
    juce::String folder() const;
    nlohmann::json document() const;
};

std::vector<Packed> patternPresets();
std::vector<Packed> soundPresets();
} // namespace Zn::Factory
