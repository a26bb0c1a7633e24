#pragma once

#include <juce_core/juce_core.h>

namespace Zn::Presets
{
/** Where preset files lie. `leaf` is the folder of one kind of preset: "Presets", "Sounds". Thread: any. */
namespace Folders
{
/** In the user's documents. */
juce::File user (const juce::String& leaf);

/** Beside the data that all users of the machine share, if somebody has made a place for us there, else beside the
    user's own settings.
*/
juce::File factory (const juce::String& leaf);

/** On the desktop; there for those who make presets only. */
juce::File development();
} // namespace Folders
} // namespace Zn::Presets
