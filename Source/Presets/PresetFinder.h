#pragma once

#include <juce_core/juce_core.h>

#include <vector>

namespace Zn::Presets
{
/** The files with an extension in a folder and in those below it, by their path in it: numbers by value, capitals
    or not. Links are followed, each folder is visited once, and what is no ordinary file is left out. Of a folder
    that is no collection of presets at all (a link to a whole disk) only a first part is searched. Thread: any but
    audio.
*/
std::vector<juce::File> findPresetFiles (const juce::File& folder, const juce::String& extension);
} // namespace Zn::Presets
