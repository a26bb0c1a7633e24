#pragma once

#include <juce_core/juce_core.h>

#include <vector>

namespace Zn::Files
{
/** A folder and what of it belongs in a menu, or a file, which has no children. */
struct Tree
{
    juce::File file;
    bool isFolder = true;
    std::vector<Tree> children; // in menu order

    /** Adds a file below this folder, and the folders on the way to it that are not there yet. */
    void add (const juce::File& fileBelow);
};
} // namespace Zn::Files

namespace Zn::Presets
{
class Base;

/** The listed presets of a library that lie in a folder, for a menu. */
Files::Tree getListTree (Base& library, const juce::File& folder);
} // namespace Zn::Presets
