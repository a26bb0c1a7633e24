#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "GUI/Framework/AssetScheme/FileParser.h"
#include "GUI/Framework/AssetScheme/Tables.h"

#include <memory>
#include <set>
#include <vector>

namespace Zn::GUI::AssetScheme
{
/** Where the editor's rectangles, colours and numbers come from: the embedded scheme, by name, once in a process.

    A name that is not there answers with nothing, mid grey or 0, stops a debug build, and is kept: a test that
    opens every screen finds them all in `getAbsentNames`. Calls its listeners when the scheme has
    become another one. Thread: message.
*/
class Base : public Events::HasBroadcaster
{
public:
    static Base& get();

    Base();

    /** From the editor's corner, in units of a thousandth of its width and height. */
    std::optional<juce::Rectangle<int>> boundsOf (std::string_view element, Fold fold = Fold::open) const;

    juce::Colour colourOf (std::string_view name) const;

    /** Strokes, insets and fonts are parts of the editor's width; names that end in "Corner" are percent of the
        shorter side of what has the corner; all others say their unit, or are proportions.
    */
    float constantOf (std::string_view name) const;

    /** The user's own colours over the built-in ones: a text as Colors.json, which may leave out colours and
        channels. One that is no such thing changes nothing, as an empty one.
    */
    void setUserColours (std::string_view jsonText);
    void resetUserColours() { setUserColours ({}); }

    const Tables& getTables() const noexcept { return tables; }
    const std::set<std::string, std::less<>>& getAbsentNames() const noexcept { return absentNames; }

    /** For work on the scheme itself: takes the files of a folder where they are sound, else the
        embedded ones, and does so again whenever one of them changes.
    */
    void follow (const juce::File& folder);

private:
    void reload();
    Tables readTables() const;
    nlohmann::json readFile (const char* fileName) const;
    void reportAbsent (std::string_view name) const;

    Tables tables;
    std::string userColours;
    mutable std::set<std::string, std::less<>> absentNames;

    juce::File followedFolder;
    std::vector<std::unique_ptr<FileParser>> watchers;
};
} // namespace Zn::GUI::AssetScheme
