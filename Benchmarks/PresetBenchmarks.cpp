#include "Foundation/Singleton.h"
#include "Presets/Base.h"
#include "Presets/FactoryContent.h"
#include "Support/ScratchFolder.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <utility>

namespace Zn::Presets
{
namespace
{
/** A preset of eight patterns of fifteen steps, as large as patterns in files are. */
std::string presetText (int number)
{
    const auto step =
        nlohmann::json::parse (R"({ "Event": { "channel": 1, "noteNum": 64, "velocity": 0.800000011920929 },
        "Time": { "start": 0.0625, "length": 0.0625 }, "enabled": true })");
    auto pattern = nlohmann::json::parse (R"({ "Multiply": false, "Pattern": { "grid": 16 },
        "Time": { "Bars": [{ "num": 4, "denum": 4 }] } })");
    pattern["Pattern"]["Steps"] = nlohmann::json (15, step);

    auto preset =
        nlohmann::json::parse (R"({ "version": "0.8.0", "product": "Vornel", "name": "Init", "dirty": false,
        "Params": null })");
    preset["id"] = std::to_string (number);
    preset["Patterns"]["Patterns"] = nlohmann::json (8, pattern);
    return preset.dump (4);
}

/** A library of such files in a folder of its own. It reflects their header only: what the contents cost is the
    model's business.
*/
class Library : public Base
{
public:
    explicit Library (juce::File folderToUse) : folder (std::move (folderToUse)) {}

    juce::File getUserFolder() const override { return folder; }
    juce::File getFactoryFolder() const override { return folder.getSiblingFile ("none"); }
    juce::File getDevelopmentFolder() const override { return {}; }

private:
    juce::File folder;
};

struct PresetFolder : Tests::ScratchFolder
{
    juce::File fill (int numFiles) const
    {
        for (auto i = 0; i < numFiles; ++i)
        {
            std::ofstream stream (preset (i).getFullPathName().toStdString());
            stream << presetText (i);
        }

        return folder;
    }

    juce::File preset (int number) const { return folder.getChildFile (juce::String (number) + ".json"); }
};

/** What a menu costs that is opened for the first time in a process. */
void listAndValidate (benchmark::State& state)
{
    const PresetFolder presets;
    const auto numFiles = static_cast<int> (state.range (0));
    presets.fill (numFiles);

    for (auto _ : state)
    {
        const Singleton::UserToken freshProcess;
        Library library (presets.folder);
        benchmark::DoNotOptimize (library.getList().size());
    }

    state.SetBytesProcessed (state.iterations() * numFiles
                             * static_cast<std::int64_t> (presetText (0).size()));
}

void loadFile (benchmark::State& state)
{
    const Singleton::UserToken singletons;
    const PresetFolder presets;
    Library library (presets.fill (1));

    for (auto _ : state)
        benchmark::DoNotOptimize (library.load (presets.preset (0)).is_null());
}

void saveFile (benchmark::State& state)
{
    const Singleton::UserToken singletons;
    const PresetFolder presets;
    Library library (presets.folder);

    for (auto _ : state)
        benchmark::DoNotOptimize (library.save (juce::URL (presets.preset (0))));
}

/** What the first plug-in of a process does: with an empty folder, or with one that holds everything already. */
void installFactory (benchmark::State& state)
{
    constexpr auto numFiles = 60;
    juce::ZipFile::Builder builder;

    for (auto i = 0; i < numFiles; ++i)
    {
        const auto text = presetText (i);
        builder.addEntry (new juce::MemoryInputStream (text.data(), text.size(), true),
                          9,
                          juce::String (i) + ".json",
                          juce::Time());
    }

    juce::MemoryBlock zip;
    juce::MemoryOutputStream stream (zip, false);
    builder.writeToStream (stream, nullptr);
    stream.flush();

    const PresetFolder presets;
    const auto isEmptyEachTime = state.range (0) != 0;

    for (auto _ : state)
    {
        installFactoryContent ({ static_cast<const std::byte*> (zip.getData()), zip.getSize() },
                               presets.folder);

        if (isEmptyEachTime)
        {
            state.PauseTiming();
            presets.folder.deleteRecursively();
            state.ResumeTiming();
        }
    }
}

BENCHMARK (listAndValidate)->Name ("presets/list and validate")->Arg (1000)->Unit (benchmark::kMillisecond);
BENCHMARK (loadFile)->Name ("presets/load a file")->Unit (benchmark::kMicrosecond);
BENCHMARK (saveFile)->Name ("presets/save a file")->Unit (benchmark::kMicrosecond);
BENCHMARK (installFactory)
    ->Name ("presets/install 60 files, from nothing")
    ->Arg (1)
    ->Unit (benchmark::kMillisecond);
BENCHMARK (installFactory)
    ->Name ("presets/install 60 files, all there")
    ->Arg (0)
    ->Unit (benchmark::kMillisecond);
} // namespace
} // namespace Zn::Presets
