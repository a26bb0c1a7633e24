#pragma once

#include <juce_core/juce_core.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Zn::Tools
{
/** The files that a command line names, and whether its one switch is given. */
struct Arguments
{
    std::vector<juce::File> files;
    bool hasSwitch = false;

    /** Everything behind "--" is a file. Throws ArgumentError. */
    static Arguments from (std::span<const std::string> words, std::string_view switchName);
};

/** Seen from where the program is called. Throws ArgumentError where there is no name. */
juce::File fileFrom (const std::string& text);
} // namespace Zn::Tools
