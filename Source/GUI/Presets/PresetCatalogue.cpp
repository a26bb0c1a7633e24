#include "GUI/Presets/PresetCatalogue.h"

#include "GUI/Browser/SearchWords.h"

#include <algorithm>
#include <array>
#include <set>

namespace Zn::GUI
{
namespace
{
struct NaturalOrder
{
    bool operator() (const juce::String& a, const juce::String& b) const
    {
        const auto order = a.compareNatural (b);
        return order != 0 ? order < 0 : a < b;
    }
};

bool comesBefore (const CataloguedPreset& a, const CataloguedPreset& b)
{
    if (a.name != b.name)
        return NaturalOrder {}(a.name, b.name);

    return a.isOwn != b.isOwn ? b.isOwn : NaturalOrder {}(a.category, b.category);
}

using Folders = std::array<juce::File, 2>; // the user's first

juce::String categoryIn (const Folders& folders, const juce::File& file)
{
    for (const auto& folder : folders)
        if (const auto parent = file.getParentDirectory(); parent.isAChildOf (folder))
            return parent.getRelativePathFrom (folder).replaceCharacter ('\\', '/');

    return {};
}
} // namespace

bool PresetGroup::contains (const CataloguedPreset& preset) const
{
    switch (kind)
    {
    case Kind::favourites:
        return preset.isFavourite;
    case Kind::own:
        return preset.isOwn;
    case Kind::category:
        return preset.category == category;
    case Kind::all:
        break;
    }

    return true;
}

PresetCatalogue::PresetCatalogue (std::vector<CataloguedPreset> presetsToSort)
    : presets (std::move (presetsToSort))
    , groups { { PresetGroup::Kind::all }, { PresetGroup::Kind::favourites }, { PresetGroup::Kind::own } }
{
    std::stable_sort (presets.begin(), presets.end(), comesBefore);

    std::set<juce::String, NaturalOrder> categories;

    for (const auto& preset : presets)
        if (preset.category.isNotEmpty())
            categories.insert (preset.category);

    for (const auto& category : categories)
        groups.push_back ({ PresetGroup::Kind::category, category });
}

std::vector<int> PresetCatalogue::find (const PresetGroup& group, const juce::String& words) const
{
    const SearchWords wanted (words);
    std::vector<int> found;

    for (auto index = 0; const auto& preset : presets)
    {
        if (group.contains (preset) && wanted.areIn (preset.name, preset.category))
            found.push_back (index);

        ++index;
    }

    return found;
}

int PresetCatalogue::count (const PresetGroup& group, const juce::String& words) const
{
    return static_cast<int> (find (group, words).size());
}

juce::String categoryOf (const Presets::Base& library, const juce::File& file)
{
    return categoryIn ({ library.getUserFolder(), library.getContentFolder() }, file);
}

bool isOwnFile (const Presets::Base& library, const juce::File& file)
{
    return file.isAChildOf (library.getUserFolder());
}

PresetCatalogue catalogueOf (Presets::Base& library, const juce::StringArray& favourites)
{
    const Folders folders { library.getUserFolder(), library.getContentFolder() };
    const std::set<juce::String> keys (favourites.begin(), favourites.end());
    std::vector<CataloguedPreset> presets;

    for (const auto& [file, id] : library.getList())
    {
        const auto name = file.getFileNameWithoutExtension();
        presets.push_back ({ .file = file,
                             .id = id,
                             .name = name,
                             .category = categoryIn (folders, file),
                             .isOwn = file.isAChildOf (folders.front()),
                             .isFavourite = keys.count (favouriteKey (library, name)) > 0 });
    }

    return PresetCatalogue (std::move (presets));
}

juce::String favouriteKey (const Presets::Base& library, const juce::String& name)
{
    return library.getProduct() + "/" + name;
}
} // namespace Zn::GUI
