#include "GUI/Presets/PresetCatalogue.h"
#include "GUI/Presets/SaveTarget.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Kind = PresetGroup::Kind;

const PresetCatalogue& someCatalogue()
{
    static const PresetCatalogue catalogue { {
        { .name = "Rolling Keys 10", .category = "House", .isFavourite = true },
        { .name = "Rolling Keys 9", .category = "House" },
        { .name = "deep stairs", .category = "Ambient", .isOwn = true, .isFavourite = true },
        { .name = "Deep House", .category = "Odd Meters" },
        { .name = "WELCOME", .category = "" },
    } };

    return catalogue;
}

juce::String namesOf (const PresetCatalogue& catalogue, const std::vector<int>& found)
{
    juce::StringArray names;

    for (const auto index : found)
        names.add (catalogue.getPresets()[static_cast<std::size_t> (index)].name);

    return names.joinIntoString (", ");
}
} // namespace

TEST (PresetCatalogue, FindsPresetsByGroupAndWordsInWhateverOrder)
{
    struct Row
    {
        PresetGroup group;
        const char* words;
        const char* expected;
    };

    const PresetGroup all {}, house { Kind::category, "House" };

    for (const auto& [group, words, expected] : std::initializer_list<Row> {
             { all, "", "Deep House, deep stairs, Rolling Keys 9, Rolling Keys 10, WELCOME" },
             { all, "house", "Deep House, Rolling Keys 9, Rolling Keys 10" },
             { all, "keys  HOUSE", "Rolling Keys 9, Rolling Keys 10" },
             { all, "odd deep", "Deep House" },
             { all, "deep techno", "" },
             { house, "", "Rolling Keys 9, Rolling Keys 10" },
             { house, "deep", "" },
             { { Kind::favourites }, "", "deep stairs, Rolling Keys 10" },
             { { Kind::own }, "", "deep stairs" } })
        EXPECT_EQ (namesOf (someCatalogue(), someCatalogue().find (group, words)), expected) << words;
}

TEST (PresetCatalogue, NamesEachFolderOnceBehindTheGroupsThatAreAlwaysThere)
{
    juce::StringArray categories;

    for (const auto& group : someCatalogue().getGroups())
        categories.add (group.category);

    EXPECT_EQ (categories.joinIntoString ("|"), "|||Ambient|House|Odd Meters");
}

TEST (SaveTarget, KeepsWhatEveryFileSystemTakes)
{
    struct Row
    {
        const char *typed, *kept;
    };

    for (const auto& [typed, kept] : std::initializer_list<Row> { { "Crossing Lines", "Crossing Lines" },
                                                                  { "a/b\\c:d*e?\"<>|\n", "abcde" },
                                                                  { " ..", "" },
                                                                  { "../up", "up" },
                                                                  { "Ends. ", "Ends" },
                                                                  { "7.5 Steps", "7.5 Steps" } })
        EXPECT_EQ (SaveTarget::legalName (typed), kept) << typed;

    EXPECT_EQ (SaveTarget::allowedCharacters ("Two/ "), "Two ") << "the next word is on its way";
}
} // namespace Zn::GUI
