#include "Hosts/Song.h"

#include "Plugin/Vornel/Processor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Zn::Tests
{
namespace
{
/** A preset file of the plug-in, and what hosts have of it. */
struct Preset
{
    juce::File file;
    juce::String kind; // "Patterns" or "Sounds"

    juce::String getName() const { return file.getFileNameWithoutExtension(); }
};

std::vector<Preset> presetsIn (const juce::File& folder, const juce::String& kind)
{
    std::vector<Preset> presets;

    for (const auto& file : folder.findChildFiles (juce::File::findFiles, true, "*.json"))
        presets.push_back ({ file, kind });

    std::sort (presets.begin(), presets.end(), [] (const auto& a, const auto& b) { return a.file < b.file; });
    return presets;
}

/** Loads presets as the plug-in's own browser does. */
class OwnBrowser
{
public:
    nlohmann::json load (const Preset& preset)
    {
        auto& state = processor.getState();
        auto& library = preset.kind == "Sounds" ? static_cast<Presets::Base&> (state.synthPreset) : state;
        EXPECT_FALSE (library.load (preset.file).is_null()) << preset.getName();

        juce::MemoryBlock chunk;
        processor.getStateInformation (chunk);
        return documentIn (chunk);
    }

private:
    Audio::Plugins::Vornel::Processor processor;
};

/** The state in a preset of the bundle, under the key that the plug-in asks for. */
std::string lv2StateOf (const Preset& preset)
{
    const auto identifier = (preset.kind + "-" + preset.getName()).toLowerCase().replace (" ", "-");
    const auto text = juce::File (VORNEL_LV2_LIBRARY)
                          .getSiblingFile ("presets")
                          .getChildFile (identifier + ".ttl")
                          .loadFileAsString();

    return text.fromFirstOccurrenceOf (VORNEL_LV2_URI ":StateString> \"", false, false)
        .upToFirstOccurrenceOf ("\"", false, false)
        .toStdString();
}

/** One after another: what a preset leaves alone must stay. */
TEST (HostPresets, DoWhatTheyDoInThePluginsOwnBrowser)
{
    const juce::File factory (VORNEL_FACTORY_PRESETS);
    auto presets = presetsIn (factory.getChildFile ("Presets"), "Patterns");
    const auto sounds = presetsIn (factory.getChildFile ("Sounds"), "Sounds");
    ASSERT_GT (presets.size(), 30u);
    ASSERT_GT (sounds.size(), 28u);

    // Patterns and sounds in turn.
    for (std::size_t i = 0; i < sounds.size(); ++i)
        presets.insert (presets.begin() + static_cast<std::ptrdiff_t> (2 * i + 1), sounds[i]);

    OwnBrowser own;
    LV2Host lv2 { VORNEL_LV2_LIBRARY, sampleRate, blockSize };

    for (const auto& preset : presets)
    {
        const auto expected = own.load (preset);

        lv2.restore (lv2StateOf (preset));
        EXPECT_EQ (nlohmann::json::diff (expected, documentIn (lv2.save())).dump(), "[]") << preset.getName();
    }
}
} // namespace
} // namespace Zn::Tests
