#include "Presets/PresetList.h"

#include <algorithm>

namespace Zn::Presets
{
const std::vector<PresetEntry>& PresetList::get (const Search& search)
{
    if (! entries)
        entries = search();

    return *entries;
}

int positionOf (const std::vector<PresetEntry>& entries,
                const juce::String& id,
                const juce::String& name,
                const juce::File& likely)
{
    const auto isIt = [&] (const PresetEntry& entry) {
        return entry.id == id && entry.file.getFileNameWithoutExtension() == name;
    };
    auto found = std::find (entries.begin(), entries.end(), PresetEntry { likely, id });

    if (found == entries.end() || ! isIt (*found))
        found = std::find_if (entries.begin(), entries.end(), isIt);

    return found == entries.end() ? -1 : static_cast<int> (found - entries.begin());
}
} // namespace Zn::Presets
