#pragma once

#include <juce_core/juce_core.h>

namespace Zn::Audio::WavetableSynth
{
/** "Category - Name", as lists show a wavetable: its file's name without the extension, with blanks for underscores.
    What has no category is put under "User".
*/
juce::String displayNameOf (const juce::String& fileName);

/** What stands behind the first " - ": the name that presets store, "Detuned ARP". */
juce::String shortNameOf (const juce::String& displayName);

/** What stands before it: "Basics". */
juce::String categoryOf (const juce::String& displayName);

/** The wavetables that are part of the program, as file names without the extension, in the order of the list. Hosts
    store a choice as its place in it, so names are never moved or removed.
*/
const juce::StringArray& factoryTableNames();
} // namespace Zn::Audio::WavetableSynth
