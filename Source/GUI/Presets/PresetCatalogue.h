#pragma once

#include "Presets/Base.h"

#include <juce_core/juce_core.h>

#include <vector>

namespace Zn::GUI
{
/** What a list shows of one preset file without reading it. */
struct CataloguedPreset
{
    juce::File file {};
    juce::String id {}; // stamp of the preset in it
    juce::String name {}, category {};
    bool isOwn = false;
    bool isFavourite = false;
};

/** Some of the presets, as the left side of a browser names them. */
struct PresetGroup
{
    enum class Kind
    {
        all,
        favourites,
        own,
        category
    };

    Kind kind = Kind::all;
    juce::String category {};

    bool contains (const CataloguedPreset& preset) const;
    bool operator== (const PresetGroup&) const = default;
};

/** The presets of a library by name, to be searched. A value: made anew when the library or the favourites change.
    Thread: any.
*/
class PresetCatalogue
{
public:
    PresetCatalogue() = default;
    explicit PresetCatalogue (std::vector<CataloguedPreset> presetsToSort);

    const std::vector<CataloguedPreset>& getPresets() const noexcept { return presets; }

    /** All, favourites, own, then the folders by name. */
    const std::vector<PresetGroup>& getGroups() const noexcept { return groups; }

    /** The places of those presets of a group that have all words in their name or category, in whatever order. */
    std::vector<int> find (const PresetGroup& group, const juce::String& words) const;

    int count (const PresetGroup& group, const juce::String& words) const;

private:
    std::vector<CataloguedPreset> presets; // by name
    std::vector<PresetGroup> groups;
};

/** The folder of a preset file, as a path from the library's folder that it lies in; empty if it lies in none, or in no
    further one.
*/
juce::String categoryOf (const Presets::Base& library, const juce::File& file);

/** Whether a file is the user's, who may write over it and delete it. */
bool isOwnFile (const Presets::Base& library, const juce::File& file);

/** `favourites` holds names as UserSettings does. Throws nothing. */
PresetCatalogue catalogueOf (Presets::Base& library, const juce::StringArray& favourites);

/** What the user's settings call a favourite. */
juce::String favouriteKey (const Presets::Base& library, const juce::String& name);
} // namespace Zn::GUI
