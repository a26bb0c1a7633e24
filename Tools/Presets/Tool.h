#pragma once

#include <span>
#include <string>

namespace Zn::PresetTool
{
/** The whole program, from the arguments behind its name to its exit status: 0 done, 1 a file is refused or presets
    differ, 2 wrong arguments.

    Results go to the standard output, errors to the error stream. JUCE must be running.
*/
int runTool (std::span<const std::string> arguments);
} // namespace Zn::PresetTool
