#include "StateFiles.h"

#include "Errors.h"
#include "Support/OutputFile.h"

namespace Zn::Render
{
namespace
{
constexpr juce::int64 largestState = 64 * 1024 * 1024; // bytes

[[noreturn]] void fail (const juce::File& file, const std::string& whatIsWrong)
{
    throw FileError (file.getFullPathName().toStdString() + ": " + whatIsWrong);
}

juce::MemoryBlock contentOf (const juce::File& file)
{
    if (file.isDirectory())
        fail (file, "is a directory");

    if (! file.existsAsFile())
        fail (file, "does not exist");

    if (file.getSize() > largestState)
        fail (file, "is larger than any state");

    juce::MemoryBlock content;

    if (! file.loadFileAsData (content))
        fail (file, "cannot be read");

    return content;
}

/** `load` is false if the file is none of its kind. */
template <typename Load>
void loadFile (const juce::File& file, const std::string& kind, Load&& load)
{
    const auto content = contentOf (file);
    auto isOfKind = false;

    try
    {
        isOfKind = load (content);
    }
    catch (const std::exception& error)
    {
        fail (file, std::string ("loading breaks off: ") + error.what());
    }

    if (! isOfKind)
        fail (file, "is no " + kind);
}
} // namespace

void loadStateFiles (juce::AudioProcessor& processor, const Options& options, const ProcessorAccess& access)
{
    if (options.stateFile)
        loadFile (*options.stateFile, "state of this plug-in", [&] (const auto& content) {
            return access.loadState (processor, content);
        });

    if (options.presetFile)
        loadFile (*options.presetFile,
                  "pattern preset; vornel-presets validate tells why",
                  [&] (const auto&) { return access.loadPreset (processor, *options.presetFile); });

    if (options.soundFile)
        loadFile (*options.soundFile, "sound preset; vornel-presets validate tells why", [&] (const auto&) {
            return access.loadSound (processor, *options.soundFile);
        });
}

void writeStateFile (juce::AudioProcessor& processor, const Options& options)
{
    if (! options.newStateFile)
        return;

    juce::MemoryBlock state;
    processor.getStateInformation (state);

    Tools::OutputFile file (*options.newStateFile);
    file.write (state.getData(), state.getSize());
    file.finish();
}
} // namespace Zn::Render
