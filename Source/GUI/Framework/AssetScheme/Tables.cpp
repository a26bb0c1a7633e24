#include "GUI/Framework/AssetScheme/Tables.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>

namespace Zn::GUI::AssetScheme
{
namespace
{
using nlohmann::json;

constexpr int deepestParents = 32;
constexpr double largestUnits = 100000.0; // a hundred editors wide: the sum of all parents still fits an int
constexpr double largestConstant = 1.0e6;

/** The number of a key, or the fallback where there is none. */
double numberOf (const json& entry, const char* key, double fallback, double lowest, double highest)
{
    const auto found = entry.find (key);
    return found != entry.end() && found->is_number() ? std::clamp (found->get<double>(), lowest, highest)
                                                      : fallback;
}

Entry entryFrom (const json& entry)
{
    const auto units = [&entry] (const char* key, double lowest) {
        return juce::roundToInt (numberOf (entry, key, 0.0, lowest, largestUnits));
    };

    const auto parent = entry.find ("parent");

    return { parent != entry.end() && parent->is_string() ? parent->get<std::string>() : std::string(),
             { units ("x", -largestUnits),
               units ("y", -largestUnits),
               units ("width", 0.0),
               units ("height", 0.0) } };
}

juce::Colour colourFrom (const json& entry, juce::Colour fallback)
{
    const auto channel = [&entry] (const char* key, juce::uint8 otherwise) {
        return static_cast<juce::uint8> (juce::roundToInt (numberOf (entry, key, otherwise, 0.0, 255.0)));
    };

    return { channel ("r", fallback.getRed()),
             channel ("g", fallback.getGreen()),
             channel ("b", fallback.getBlue()),
             channel ("a", fallback.getAlpha()) };
}

void forEachEntry (const json& file, const auto& use)
{
    if (file.is_object())
        for (const auto& [name, entry] : file.items())
            if (entry.is_object())
                use (name, entry);
}
} // namespace

void Tables::addRectangles (const json& file)
{
    forEachEntry (file, [this] (const std::string& name, const json& entry) {
        rectangles.insert_or_assign (name, entryFrom (entry));
    });
}

void Tables::addConstants (const json& file)
{
    forEachEntry (file, [this] (const std::string& name, const json& entry) {
        constants.insert_or_assign (
            name,
            static_cast<float> (numberOf (entry, "value", 0.0, -largestConstant, largestConstant)));
    });
}

void Tables::addColours (const json& file)
{
    forEachEntry (file, [this] (const std::string& name, const json& entry) {
        auto& colour = colours.try_emplace (name, juce::Colours::black).first->second;
        colour = colourFrom (entry, colour);
    });
}

void Tables::changeColours (const json& file)
{
    forEachEntry (file, [this] (const std::string& name, const json& entry) {
        if (const auto found = colours.find (name); found != colours.end())
            found->second = colourFrom (entry, found->second);
    });
}

std::optional<juce::Rectangle<int>> Tables::absolute (std::string_view element, Fold fold) const
{
    const auto* entry = find (element, fold);

    if (entry == nullptr)
        return std::nullopt;

    auto bounds = entry->bounds;

    for (auto depth = 0; ! entry->parent.empty(); ++depth)
    {
        entry = find (entry->parent, fold);

        if (entry == nullptr || depth == deepestParents)
            return std::nullopt;

        bounds += entry->bounds.getPosition();
    }

    return bounds;
}

const Entry* Tables::find (std::string_view element, Fold fold) const
{
    if (fold == Fold::folded)
        for (const auto* suffix : { "Tall", "Folded" })
            if (const auto found = rectangles.find (std::string (element) + suffix);
                found != rectangles.end())
                return &found->second;

    const auto found = rectangles.find (element);
    return found != rectangles.end() ? &found->second : nullptr;
}
} // namespace Zn::GUI::AssetScheme
