#pragma once

#include <juce_core/juce_core.h>

#include <string_view>

namespace Zn::Presets
{
enum class Durability
{
    survivesPowerLoss, // slow: waits for the disk
    canBeMadeAgain
};

/** Replaces a file in one go. Whoever reads it, and whenever this process ends, finds the old content or the new;
    false says that it is the old, or still nothing. What an interrupted try has left beside the file
    goes with the next. Thread: any but audio.
*/
bool replaceFile (const juce::File& target, std::string_view content, Durability durability);
} // namespace Zn::Presets
