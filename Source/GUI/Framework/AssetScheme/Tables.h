#pragma once

#include <juce_graphics/juce_graphics.h>
#include <nlohmann/json_fwd.hpp>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace Zn::GUI::AssetScheme
{
/** Whether the sound is folded to one line, which gives its height to the pattern. */
enum class Fold
{
    open,
    folded
};

/** A rectangle as its file tells it: in units, from the corner of its parent. */
struct Entry
{
    std::string parent; // empty: the rectangle is the whole editor
    juce::Rectangle<int> bounds;

    bool operator== (const Entry&) const = default;
};

/** What the scheme's files say, by name: a value, built file by file.

    Across the editor there are 1000 units, and down it 1000 as well. Whatever a file says that makes no sense
    is left out or drawn to what does: entries that are no objects, numbers beyond reason, texts for numbers.
    Keys other than those that are read, "placement" among them, mean nothing.
*/
class Tables
{
public:
    template <typename T>
    using ByName = std::map<std::string, T, std::less<>>;

    void addRectangles (const nlohmann::json& file);
    void addConstants (const nlohmann::json& file);

    /** New colours; of those that exist already, what the file tells of them. */
    void addColours (const nlohmann::json& file);

    /** As addColours, for colours that exist already only. */
    void changeColours (const nlohmann::json& file);

    /** From the corner of the editor, in units. None for an unknown name, nor where the parents are unknown,
        more than 32, or run in a circle. While the sound is folded a rectangle, and each of its parents,
        gives way to the one of its name with "Tall" or "Folded" behind it.
    */
    std::optional<juce::Rectangle<int>> absolute (std::string_view element, Fold fold) const;

    const ByName<Entry>& getRectangles() const noexcept { return rectangles; }
    const ByName<juce::Colour>& getColours() const noexcept { return colours; }
    const ByName<float>& getConstants() const noexcept { return constants; }

    bool operator== (const Tables&) const = default;

private:
    const Entry* find (std::string_view element, Fold fold) const;

    ByName<Entry> rectangles;
    ByName<juce::Colour> colours;
    ByName<float> constants;
};
} // namespace Zn::GUI::AssetScheme
