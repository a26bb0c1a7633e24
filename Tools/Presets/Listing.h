#pragma once

#include <juce_core/juce_core.h>

#include <vector>

namespace Zn::PresetTool
{
/** One preset that the plug-in offers in its menus. */
struct Listed
{
    juce::String kind, origin, category, name;
    juce::File file;
};

/** The presets of both kinds in menu order: those of the factory, which are installed first as the plug-in does it, and
    those of the user.
*/
std::vector<Listed> listPresets();

/** A line for each, in columns under a heading. */
juce::String tableOf (const std::vector<Listed>& presets);
} // namespace Zn::PresetTool
