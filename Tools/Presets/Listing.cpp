#include "Listing.h"

#include "Plugin/Vornel/State.h"
#include "Support/TextTable.h"

#include <array>

namespace Zn::PresetTool
{
namespace
{
/** The folders between a library's own and the preset. */
juce::String categoryOf (const juce::File& file, const juce::File& folder)
{
    const auto parent = file.getParentDirectory();
    return parent == folder ? juce::String() : parent.getRelativePathFrom (folder);
}

void addPresetsOf (std::vector<Listed>& presets, Presets::Base& library, const juce::String& kind)
{
    library.prepareFirstUse();

    for (const auto& entry : library.getList())
    {
        const auto isUsers = entry.file.isAChildOf (library.getUserFolder());
        const auto folder = isUsers ? library.getUserFolder() : library.getContentFolder();

        presets.push_back ({ kind,
                             isUsers ? "user" : "factory",
                             categoryOf (entry.file, folder),
                             entry.file.getFileNameWithoutExtension(),
                             entry.file });
    }
}
} // namespace

std::vector<Listed> listPresets()
{
    Audio::Plugins::Vornel::State state;
    std::vector<Listed> presets;
    addPresetsOf (presets, state, "pattern");
    addPresetsOf (presets, state.synthPreset, "sound");
    return presets;
}

juce::String tableOf (const std::vector<Listed>& presets)
{
    using Row = std::array<juce::String, 4>;
    std::vector<Row> rows { { "Kind", "Origin", "Category", "Name" } };

    for (const auto& preset : presets)
        rows.push_back ({ preset.kind, preset.origin, preset.category, preset.name });

    return Tools::textTable (rows);
}
} // namespace Zn::PresetTool
