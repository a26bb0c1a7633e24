#include "FactoryData.h"
#include "Foundation/Singleton.h"
#include "Plugin/Vornel/State.h"
#include "Presets/Reflection/JsonText.h"
#include "Support/Documents.h"

#include <gmock/gmock.h>

#include <set>
#include <string_view>
#include <vector>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using nlohmann::json;
using ::testing::Ge;
using ::testing::SizeIs;

/** A preset as it lies in the program's archive. */
struct Packed
{
    juce::String path;
    std::string bytes;

    juce::String name() const
    {
        return path.fromLastOccurrenceOf ("/", false, false).upToLastOccurrenceOf (".", false, false);
    }
    juce::String folder() const { return path.upToLastOccurrenceOf ("/", false, false); }
    json document() const { return Json::parse (bytes); }
};

void PrintTo (const Packed& preset, std::ostream* out)
{
    *out << preset.path;
}

std::vector<Packed> unpacked (const char* archive)
{
    auto size = 0;
    const auto* data = FactoryData::getNamedResource (archive, size);
    juce::MemoryInputStream stream (data, static_cast<std::size_t> (size), false);
    juce::ZipFile zip (stream);
    std::vector<Packed> presets;

    for (auto i = 0; i < zip.getNumEntries(); ++i)
    {
        juce::MemoryBlock content;
        std::unique_ptr<juce::InputStream> (zip.createStreamForEntry (i))->readIntoMemoryBlock (content);
        presets.push_back ({ zip.getEntry (i)->filename, std::string (content.begin(), content.end()) });
    }

    return presets;
}

std::vector<Packed> patternPresets()
{
    return unpacked ("FactoryPresets_zip");
}

std::vector<Packed> soundPresets()
{
    return unpacked ("FactorySounds_zip");
}

std::string fileOf (const json& document)
{
    return Json::toText (document, 4) + "\n" + '\0';
}

/** Presets are loaded one after the other into one model, so that nothing of one may shine through the next. */
struct FactoryPresets : ::testing::Test
{
    const Singleton::UserToken singletons;
    State state;

    /** The file with everything below its header as the model has it now. */
    std::string rewritten (const json& document)
    {
        auto result = document;
        const auto model = Tests::saved (state);

        for (const auto* key : { "Params", "Patterns" })
            result[key] = model.at (key);

        return fileOf (result);
    }
};

TEST_F (FactoryPresets, PatternsAreWhatTheProgramWouldWrite)
{
    for (const auto& preset : patternPresets())
    {
        const auto document = preset.document();
        Tests::load (state, document);
        state.savesParams = ! document.at ("Params").is_null();

        EXPECT_EQ (rewritten (document), preset.bytes) << preset.path;
    }
}

TEST_F (FactoryPresets, SoundsAreWhatTheProgramWouldWrite)
{
    for (const auto& preset : soundPresets())
    {
        auto document = preset.document();
        Tests::load (state.params.sound, document.at ("Params"));
        document["Params"] = Tests::saved (state.params.sound);

        EXPECT_EQ (fileOf (document), preset.bytes) << preset.path;
    }
}

TEST_F (FactoryPresets, EverySlotPlaysSomething)
{
    for (const auto& preset : patternPresets())
    {
        Tests::load (state, preset.document());

        for (const auto& slot : state.patterns.getPatternData()->slots)
            EXPECT_FALSE (slot.events.notes.empty()) << preset.path;
    }
}

TEST (FactoryLibraries, TellTheirPresetsApart)
{
    for (const auto& presets : { patternPresets(), soundPresets() })
    {
        std::set<juce::String> names, stamps, folders;

        for (const auto& preset : presets)
        {
            const auto header = preset.document();
            names.insert (preset.name().toLowerCase());
            stamps.insert (juce::String (header.at ("id").get<std::string>()));
            folders.insert (preset.folder());

            EXPECT_EQ (juce::String (header.at ("name").get<std::string>()), preset.name());
            EXPECT_EQ (juce::File::createLegalFileName (preset.name()), preset.name());
            EXPECT_FALSE (header.at ("dirty").get<bool>()) << preset.path;
        }

        EXPECT_THAT (presets, SizeIs (Ge (16u)));
        EXPECT_THAT (folders, SizeIs (Ge (2u)));
        EXPECT_EQ (names.size(), presets.size());
        EXPECT_EQ (stamps.size(), presets.size());
    }
}
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
