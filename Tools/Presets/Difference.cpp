#include "Difference.h"

#include "Presets/Reflection/JsonText.h"

#include <map>
#include <string>

namespace Zn::PresetTool
{
namespace
{
using nlohmann::json;

/** Leaves by their path. */
using Leaves = std::map<std::string, std::string>;

/** A step's row and start; empty when this is no step. */
std::string placeOf (const json& step)
{
    const auto valueOf = [&step] (const char* group, const char* key) {
        const auto holder = step.is_object() ? step.find (group) : step.end();
        return holder != step.end() && holder->is_object() ? holder->value (key, json()) : json();
    };

    const auto row = valueOf ("Event", "noteNum");
    const auto start = valueOf ("Time", "start");
    return row.is_number() && start.is_number() ? "row " + Json::toText (row) + " at " + Json::toText (start)
                                                : std::string();
}

void addLeaves (Leaves& leaves, const std::string& path, const json& node)
{
    if (! node.is_structured() || node.empty())
    {
        leaves.emplace (path, Json::toText (node));
        return;
    }

    const auto prefix = path.empty() ? path : path + "/";
    std::map<std::string, int> timesSeen;

    for (const auto& [key, child] : node.items())
    {
        auto name = node.is_array() ? placeOf (child) : key;

        if (name.empty())
            name = key;

        if (const auto number = ++timesSeen[name]; number > 1) // two steps at one place
            name += " (" + std::to_string (number) + ")";

        addLeaves (leaves, prefix + name, child);
    }
}

Leaves leavesOf (const json& document)
{
    Leaves leaves;
    addLeaves (leaves, {}, document);
    return leaves;
}

const std::string& valueIn (const Leaves& leaves, const std::string& path)
{
    static const std::string absent = "-";
    const auto leaf = leaves.find (path);
    return leaf == leaves.end() ? absent : leaf->second;
}
} // namespace

juce::StringArray differencesBetween (const json& first, const json& second)
{
    const auto ofFirst = leavesOf (first);
    const auto ofSecond = leavesOf (second);

    auto paths = ofFirst;
    paths.insert (ofSecond.begin(), ofSecond.end());

    juce::StringArray lines;

    for (const auto& [path, value] : paths)
    {
        const auto& left = valueIn (ofFirst, path);
        const auto& right = valueIn (ofSecond, path);

        if (left != right)
            lines.add (juce::String::fromUTF8 ((path + ": " + left + " | " + right).c_str()));
    }

    return lines;
}
} // namespace Zn::PresetTool
