#pragma once

#include <juce_core/juce_core.h>

#include <atomic>

namespace Zn::TonqTool
{
/** Copies the sound of one file into another, sample for sample, some thousand frames at a time. One of the two is a
    ".tnq" file; which, is told by the content of the first and the name of the second.

    False if it was interrupted. Throws FileError. Then, too, nothing is written.
*/
bool convert (const juce::File& source, const juce::File& target, const std::atomic<bool>& interrupted);
} // namespace Zn::TonqTool
