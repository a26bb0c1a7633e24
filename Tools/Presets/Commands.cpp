#include "Commands.h"

#include "Difference.h"
#include "Errors.h"
#include "Listing.h"
#include "Preset.h"
#include "Presets/AtomicFile.h"
#include "Presets/PresetFile.h"
#include "Summary.h"

#include <algorithm>
#include <iostream>

namespace Zn::PresetTool
{
namespace
{
constexpr int done = 0, notSo = 1;

juce::String pathOf (const juce::File& file)
{
    return file.getFullPathName();
}

/** Does something with each file, whatever becomes of the others. */
template <typename Action>
int forEach (const std::vector<juce::File>& files, Action&& action)
{
    auto status = done;

    for (const auto& file : files)
        status = std::max (status, action (file));

    return status;
}

/** Reads a preset; what is wrong with it names the file. */
Preset readNamed (const juce::File& file)
{
    try
    {
        return readPreset (file);
    }
    catch (const Refused& error)
    {
        throw Refused (pathOf (file).toStdString() + ": " + error.what());
    }
}

std::string bytesOf (const Preset& preset)
{
    return Presets::PresetFile::toBytes (LoadedPreset (preset).getDocument());
}

int validateOne (const juce::File& file)
{
    try
    {
        const auto preset = readPreset (file);
        const LoadedPreset loads (preset);
        std::cout << pathOf (file) << ": " << preset.getKindName() << '\n';
        return done;
    }
    catch (const Refused& error)
    {
        std::cout << pathOf (file) << ": refused: " << error.what() << '\n';
        return notSo;
    }
}

int rewriteOne (const juce::File& file, bool onlyChecks)
{
    try
    {
        const auto bytes = bytesOf (readPreset (file));

        if (Presets::PresetFile::readBytes (file) == bytes)
            return done;

        std::cout << pathOf (file) << (onlyChecks ? ": would be rewritten\n" : ": rewritten\n");

        if (onlyChecks)
            return notSo;

        if (! Presets::replaceFile (file, bytes, Presets::Durability::survivesPowerLoss))
            throw Refused ("cannot be written");

        return done;
    }
    catch (const Refused& error)
    {
        std::cerr << "vornel-presets: " << pathOf (file) << ": " << error.what() << '\n';
        return notSo;
    }
}
} // namespace

int validate (const Arguments& arguments)
{
    return forEach (arguments.files, validateOne);
}

int list (const Arguments& arguments)
{
    const auto presets = listPresets();

    if (! arguments.hasSwitch)
        std::cout << tableOf (presets);
    else
        for (const auto& preset : presets)
            std::cout << pathOf (preset.file) << '\n';

    return done;
}

int show (const Arguments& arguments)
{
    std::cout << summaryOf (readNamed (arguments.files.front()));
    return done;
}

int diff (const Arguments& arguments)
{
    const auto lines =
        differencesBetween (readNamed (arguments.files[0]).document, readNamed (arguments.files[1]).document);

    for (const auto& line : lines)
        std::cout << line << '\n';

    return lines.isEmpty() ? done : notSo;
}

int rewrite (const Arguments& arguments)
{
    return forEach (arguments.files,
                    [&] (const auto& file) { return rewriteOne (file, arguments.hasSwitch); });
}
} // namespace Zn::PresetTool
