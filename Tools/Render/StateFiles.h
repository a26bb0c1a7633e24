#pragma once

#include "Options.h"
#include "Tool.h"

namespace Zn::Render
{
/** Loads the state and the presets that the options name. Throws FileError that names the file which is none. */
void loadStateFiles (juce::AudioProcessor& processor, const Options& options, const ProcessorAccess& access);

/** Writes what a host would keep in its project, if the options ask for it. Throws FileError. */
void writeStateFile (juce::AudioProcessor& processor, const Options& options);
} // namespace Zn::Render
