#include "Foundation/Singleton.h"
#include "Presets/Base.h"
#include "Presets/FactoryContent.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <utility>

namespace Zn::Presets
{
namespace
{
/** Eight patterns of fifteen steps, as large as patterns in files are. */
struct Patterns
{
    nlohmann::json document = [] {
        const auto step =
            nlohmann::json { { "Event",
                               { { "channel", 1 }, { "noteNum", 64 }, { "velocity", 0.800000011920929 } } },
                             { "Time", { { "start", 0.0625 }, { "length", 0.0625 } } },
                             { "enabled", true } };

        const auto time = nlohmann::json { { "Bars", { { { "num", 4 }, { "denum", 4 } } } } };
        const auto steps = nlohmann::json (15, step);
        const auto pattern = nlohmann::json { { "Multiply", false },
                                              { "Time", time },
                                              { "Pattern", { { "Steps", steps }, { "grid", 16 } } } };
        return nlohmann::json { { "Patterns", nlohmann::json (8, pattern) } };
    }();
};

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

class PresetFolder
{
public:
    PresetFolder() { folder.createDirectory(); }
    ~PresetFolder() { folder.deleteRecursively(); }

    PresetFolder (const PresetFolder&) = delete;
    PresetFolder& operator= (const PresetFolder&) = delete;

    static std::string text (int number)
    {
        nlohmann::json document { { "version", "0.8.0" },
                                  { "product", "Vornel" },
                                  { "name", "Init" },
                                  { "id", std::to_string (number) },
                                  { "dirty", false },
                                  { "Params", nullptr },
                                  { "Patterns", Patterns().document } };
        return document.dump (4);
    }

    juce::File fill (int numFiles) const
    {
        for (auto i = 0; i < numFiles; ++i)
        {
            std::ofstream stream (file (i).getFullPathName().toStdString());
            stream << text (i);
        }

        return folder;
    }

    juce::File file (int number) const { return folder.getChildFile (juce::String (number) + ".json"); }

    const juce::File folder =
        juce::File::getSpecialLocation (juce::File::tempDirectory).getChildFile (juce::Uuid().toString());
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
                             * static_cast<std::int64_t> (presets.text (0).size()));
}

void loadFile (benchmark::State& state)
{
    const Singleton::UserToken singletons;
    const PresetFolder presets;
    Library library (presets.fill (1));

    for (auto _ : state)
        benchmark::DoNotOptimize (library.load (presets.file (0)).is_null());
}

void saveFile (benchmark::State& state)
{
    const Singleton::UserToken singletons;
    const PresetFolder presets;
    Library library (presets.folder);

    for (auto _ : state)
        benchmark::DoNotOptimize (library.save (juce::URL (presets.file (0))));
}

/** What the first plug-in of a process does: with an empty folder, or with one that holds everything already. */
void installFactory (benchmark::State& state)
{
    constexpr auto numFiles = 60;
    juce::ZipFile::Builder builder;

    for (auto i = 0; i < numFiles; ++i)
    {
        const auto text = PresetFolder::text (i);
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
