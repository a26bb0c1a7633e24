#include "GUI/Widgets/UserSettings.h"

#include "Presets/AtomicFile.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>
#include <utility>

namespace Zn::GUI
{
namespace
{
using Values = UserSettings::Values;
using Json = nlohmann::json;

constexpr juce::int64 largestFile = 1024 * 1024; // bytes
constexpr auto indentation = 4;                  // spaces

/** Every setting under the name that it has in the file. */
template <typename Visit, typename... AllValues>
void visitFields (Visit&& visit, AllValues&... values)
{
    visit ("middleC", values.middleC...);
    visit ("tooltips", values.tooltips...);
    visit ("reducedMotion", values.reducedMotion...);
    visit ("playHeadHertz", values.playHeadHertz...);
    visit ("followsPlayingSlot", values.followsPlayingSlot...);
    visit ("wheelTurnsKnobs", values.wheelTurnsKnobs...);
    visit ("ownColours", values.ownColours...);
    visit ("chordsPlayed", values.chordsPlayed...);
    visit ("favourites", values.favourites...);
}

void readValue (const Json& json, bool& value)
{
    if (json.is_boolean())
        value = json.get<bool>();
}

void readValue (const Json& json, int& value)
{
    if (json.is_number_integer())
        value = json.get<int>();
}

void readValue (const Json& json, juce::StringArray& value)
{
    if (! json.is_array())
        return;

    value.clear();

    for (const auto& line : json)
        if (line.is_string())
            value.add (juce::String (line.get<std::string>()));
}

Json jsonOf (bool value)
{
    return value;
}

Json jsonOf (int value)
{
    return value;
}

Json jsonOf (const juce::StringArray& value)
{
    auto lines = Json::array();

    for (const auto& line : value)
        lines.push_back (line.toStdString());

    return lines;
}

/** What a file says may have been written by hand. */
Values sound (Values values)
{
    values.middleC = juce::jlimit (3, 4, values.middleC);
    values.playHeadHertz = values.playHeadHertz == 30 ? 30 : 60;
    values.chordsPlayed = std::max (0, values.chordsPlayed);
    return values;
}

/** None if there is something else in the file; what is not there has its default. */
std::optional<Values> readFile (const juce::File& file)
{
    Values values;

    if (! file.existsAsFile())
        return values;

    if (file.getSize() > largestFile)
        return {};

    const auto text = file.loadFileAsString().toStdString();
    const auto json = Json::parse (text, nullptr, false);

    if (! json.is_object())
        return {};

    const auto readField = [&json] (const char* name, auto& value) {
        if (const auto found = json.find (name); found != json.end())
            readValue (*found, value);
    };

    visitFields (readField, values);
    return sound (values);
}

void merge (auto& target, const auto& before, const auto& after)
{
    if (before != after)
        target = after;
}

/** Line by line, as others may have added some and removed some. */
void merge (juce::StringArray& target, const juce::StringArray& before, const juce::StringArray& after)
{
    for (const auto& line : before)
        if (! after.contains (line))
            target.removeString (line);

    for (const auto& line : after)
        if (! before.contains (line))
            target.addIfNotAlreadyThere (line);
}

/** What nobody can read is no longer in the way, but still there for whoever can mend it. */
bool keepAside (const juce::File& file)
{
    return file.moveFileTo (file.getSiblingFile (file.getFileName() + ".bad").getNonexistentSibling (false));
}

std::string textOf (const Values& values)
{
    auto json = Json::object();
    visitFields ([&json] (const char* name, const auto& value) { json[name] = jsonOf (value); }, values);
    return json.dump (indentation, ' ', false, Json::error_handler_t::replace);
}
} // namespace

UserSettings::UserSettings (const juce::File& fileToUse)
    : watcher (fileToUse, [this] { read(); })
    , inFile (readFile (fileToUse).value_or (Values()))
    , values (inFile)
{}

juce::File UserSettings::defaultFile()
{
    return juce::File::getSpecialLocation (juce::File::userApplicationDataDirectory)
        .getChildFile ("Brenvik/Vornel/settings.json");
}

void UserSettings::set (const Values& newValues)
{
    if (values != newValues)
        write (newValues);
}

void UserSettings::retry()
{
    hasFailed = false;
    write (Values (values));
}

/** What others have written, with what has been changed here since the file was read or written last. */
Values UserSettings::merged (Values target, const Values& wanted) const
{
    visitFields ([] (const char*, auto&... field) { merge (field...); }, target, inFile, wanted);
    return target;
}

void UserSettings::read()
{
    const auto found = readFile (watcher.getFile());

    if (! found)
        return;

    const auto newValues = merged (*found, values); // some may not have been written
    inFile = *found;
    take (newValues);
}

void UserSettings::write (const Values& wanted)
{
    const auto& file = watcher.getFile();
    const auto found = file.existsAsFile() ? readFile (file) : inFile;
    const auto newValues = merged (found.value_or (inFile), wanted);
    file.getParentDirectory().createDirectory();

    const auto isWritten =
        (found || keepAside (file))
        && Presets::replaceFile (file, textOf (newValues), Presets::Durability::survivesPowerLoss);

    if (isWritten)
        inFile = newValues;

    take (newValues);
    tell (isWritten);
}

void UserSettings::tell (bool isWritten)
{
    if (! std::exchange (hasFailed, ! isWritten) && hasFailed)
        failures.callListeners();
}

void UserSettings::take (const Values& newValues)
{
    if (values == newValues)
        return;

    values = newValues;
    callListeners();
}
} // namespace Zn::GUI
