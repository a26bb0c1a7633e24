#pragma once

#include <juce_core/juce_core.h>

namespace Zn
{
/** Moves a file to the desktop's bin; false if it stays. Thread: message. */
bool moveToTrash (const juce::File& file);
} // namespace Zn
