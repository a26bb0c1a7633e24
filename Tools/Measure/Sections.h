#pragma once

#include <juce_core/juce_core.h>

/** The sections of the report, each made by measuring anew. */
namespace Zn::Measure
{
/** What folds back, and what stands still, when a wavetable is played on keys far apart. */
juce::String measureTables();

/** The filter's response to an impulse against what its coefficients should give. */
juce::String measureFilter();

/** What the echo answers to an impulse, how much of it goes around, and how a changed time is heard. */
juce::String measureDelay();

/** How far the whole plug-in's sound depends on the size of the host's blocks. */
juce::String measureBlocks();
} // namespace Zn::Measure
