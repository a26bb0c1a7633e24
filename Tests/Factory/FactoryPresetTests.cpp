#include "Factory/PackedPresets.h"
#include "Foundation/Singleton.h"
#include "Plugin/Vornel/State.h"
#include "Presets/Reflection/JsonText.h"
#include "Support/Documents.h"

#include <gmock/gmock.h>

#include <set>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using Factory::patternPresets;
using Factory::soundPresets;
using nlohmann::json;
using ::testing::Ge;
using ::testing::SizeIs;

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
