#pragma once

#include "Presets/Base.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** Where a preset is going to be saved, under which name. Thread: message. */
namespace SaveTarget
{
/** What of a text can be the name of a file or a folder everywhere. */
juce::String legalName (const juce::String& text);

/** What of a text may be typed into a name. */
juce::String allowedCharacters (const juce::String& text);

/** The file of a name and a category, a path below the user's folder; no file without a name. */
juce::File fileFor (const Presets::Base& library, const juce::String& name, const juce::String& category);

/** A name that no preset of the library has: this one, or with a number behind it. */
juce::String freeName (Presets::Base& library, const juce::String& name);

/** What stands against writing a file, in words; empty if it seems possible. Makes the folder. */
juce::String whyNotWritable (const Presets::Base& library, const juce::File& file);
} // namespace SaveTarget
} // namespace Zn::GUI
