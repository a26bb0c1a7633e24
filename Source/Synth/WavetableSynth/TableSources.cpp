#include "Synth/WavetableSynth/TableSources.h"

#include "Foundation/Binaries.h"
#include "Synth/WavetableSynth/TableNames.h"

#include <algorithm>

#if __has_include(<WavetableData.h>)
#include <WavetableData.h>
#endif

namespace Zn::Audio::WavetableSynth
{
namespace
{
constexpr int maxUserFiles = 256;

Binaries::Library factoryFiles()
{
#if __has_include(<WavetableData.h>)
    return Binaries::libraryOf (WavetableData::namedResourceList,
                                WavetableData::originalFilenames,
                                WavetableData::namedResourceListSize,
                                WavetableData::getNamedResource);
#else
    return {};
#endif
}
} // namespace

std::vector<TableSource> factorySources()
{
    const auto files = factoryFiles();
    std::vector<TableSource> sources;

    for (const auto& name : factoryTableNames())
    {
        const auto content = files.find (Binaries::resourceName ((name + ".wav").toStdString()));

        if (! content.empty())
            sources.push_back ({ displayNameOf (name), std::make_unique<Sampler::MemorySource> (content) });
    }

    return sources;
}

std::vector<TableSource> userSources (const juce::File& folder)
{
    auto files = folder.findChildFiles (juce::File::findFiles | juce::File::ignoreHiddenFiles, false);
    files.removeIf ([] (const juce::File& file) { return ! file.hasFileExtension ("wav;tnq"); });

    // Names that differ in case only are told apart too, so that the order never depends on the file system.
    std::sort (files.begin(), files.end(), [] (const juce::File& a, const juce::File& b) {
        const auto nameA = a.getFileName(), nameB = b.getFileName();
        const auto order = nameA.compareNatural (nameB);
        return order != 0 ? order < 0 : nameA < nameB;
    });

    if (files.size() > maxUserFiles)
        files.removeRange (maxUserFiles, files.size());

    std::vector<TableSource> sources;

    for (const auto& file : files)
        sources.push_back (
            { displayNameOf (file.getFileName()), std::make_unique<Sampler::FileSource> (file) });

    return sources;
}

juce::File userFolder()
{
    return juce::File::getSpecialLocation (juce::File::userDocumentsDirectory)
        .getChildFile ("Brenvik")
        .getChildFile ("Vornel")
        .getChildFile ("Wavetables");
}
} // namespace Zn::Audio::WavetableSynth
