#pragma once

#include "Options.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <atomic>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace Zn::Render
{
/** How the tool gets at the processor it renders, beyond what every host can do. */
struct ProcessorAccess
{
    std::function<std::unique_ptr<juce::AudioProcessor>()> create;
    std::function<void (juce::AudioProcessor&, int slot)> selectSlot;
    std::function<void (juce::AudioProcessor&, const Options::Learned&)> learn; // of a parameter that exists
    std::function<void (juce::AudioProcessor&, juce::int64 seed)> setSeed;

    // Each loads a file and is false if the file is none of its kind; what breaks off is thrown.
    std::function<bool (juce::AudioProcessor&, const juce::File&)> loadPreset, loadSound;
    std::function<bool (juce::AudioProcessor&, const juce::MemoryBlock&)> loadState;
};

/** The whole program, from the arguments behind its name to its exit status: 0, 1 for files, 2 for arguments.

    Results go to the standard output, errors to the error stream. JUCE must be running. When `interrupted`
    becomes true, the render stops and leaves no file behind; the status is then 130.
*/
int runTool (std::span<const std::string> arguments,
             const ProcessorAccess&,
             const std::atomic<bool>& interrupted);
} // namespace Zn::Render
