#pragma once

#include <juce_core/juce_core.h>

namespace Zn::Audio::Formats::TONQ
{
/** Keys and values in UTF-8, each with a NUL behind it. Of what would not fit into a file the rest is left out. */
juce::MemoryBlock bytesFrom (const juce::StringPairArray& metadata);

/** A value without its NUL is dropped, with its key, and so are both if one is not UTF-8. */
juce::StringPairArray metadataFrom (const juce::MemoryBlock& bytes);
} // namespace Zn::Audio::Formats::TONQ
