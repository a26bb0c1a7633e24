#pragma once

#include <juce_core/juce_core.h>

#include <string>
#include <vector>

namespace Zn::PresetTool
{
/** What stands behind a command: its files, and whether its switch is given. */
struct Arguments
{
    std::vector<juce::File> files;
    bool hasSwitch = false;
};

// Each prints its results and returns an exit status: 0 done, 1 not so for one of the files. Throws Refused or
// std::exception, whose text names the file.

int validate (const Arguments& arguments);
int list (const Arguments& arguments); // switch: paths only
int show (const Arguments& arguments);
int diff (const Arguments& arguments);    // two files
int rewrite (const Arguments& arguments); // switch: only tell what would change
} // namespace Zn::PresetTool
