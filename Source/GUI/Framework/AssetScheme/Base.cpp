#include "GUI/Framework/AssetScheme/Base.h"

#include "Foundation/Singleton.h"
#include "GUI/Framework/Resources.h"
#include "Presets/Reflection/JsonText.h"

#include <array>

namespace Zn::GUI::AssetScheme
{
namespace
{
constexpr auto colourFile = "Colors.json";
constexpr auto constantFile = "Constants.json";
constexpr std::array rectangleFiles { "Main.json",        "ArpHeader.json",   "ArpParamModule.json",
                                      "BrushModule.json", "SoundModule.json", "Popups.json" };

constexpr std::size_t largestFile = 1024 * 1024; // bytes: far more than a scheme says

nlohmann::json parsed (std::string_view text)
{
    return Json::parse (text, largestFile);
}
} // namespace

Base& Base::get()
{
    return Singleton::get<Base>();
}

Base::Base()
{
    tables = readTables();

#ifdef ZN_LIVE_SCHEME_FOLDER
    follow (juce::File (ZN_LIVE_SCHEME_FOLDER));
#endif
}

std::optional<juce::Rectangle<int>> Base::boundsOf (std::string_view element, Fold fold) const
{
    auto bounds = tables.absolute (element, fold);

    if (! bounds)
        reportAbsent (element);

    return bounds;
}

juce::Colour Base::colourOf (std::string_view name) const
{
    if (const auto found = tables.getColours().find (name); found != tables.getColours().end())
        return found->second;

    reportAbsent (name);
    return juce::Colours::grey;
}

float Base::constantOf (std::string_view name) const
{
    if (const auto found = tables.getConstants().find (name); found != tables.getConstants().end())
        return found->second;

    reportAbsent (name);
    return 0.0f;
}

void Base::setUserColours (std::string_view jsonText)
{
    userColours = jsonText;
    reload();
}

void Base::follow (const juce::File& folder)
{
    followedFolder = folder;
    watchers.clear();

    const auto watch = [this] (const char* fileName) {
        watchers.push_back (
            std::make_unique<FileParser> (followedFolder.getChildFile (fileName), [this] { reload(); }));
    };

    for (const auto* fileName : rectangleFiles)
        watch (fileName);

    watch (colourFile);
    watch (constantFile);
    reload();
}

void Base::reload()
{
    JUCE_ASSERT_MESSAGE_THREAD

    auto newTables = readTables();

    if (newTables == tables)
        return;

    tables = std::move (newTables);
    absentNames.clear();
    callListeners();
}

Tables Base::readTables() const
{
    Tables read;

    for (const auto* fileName : rectangleFiles)
        read.addRectangles (readFile (fileName));

    read.addColours (readFile (colourFile));
    read.changeColours (parsed (userColours));
    read.addConstants (readFile (constantFile));
    return read;
}

nlohmann::json Base::readFile (const char* fileName) const
{
    if (followedFolder != juce::File())
    {
        const auto text = followedFolder.getChildFile (fileName).loadFileAsString().toStdString();

        if (auto document = parsed (text); document.is_object())
            return document;
    }

    return parsed (textOf (contentOf (fileName)));
}

void Base::reportAbsent (std::string_view name) const
{
    if (! absentNames.emplace (name).second)
        return;

    DBG ("The scheme has no " + juce::String (std::string (name)));
    jassertfalse;
}
} // namespace Zn::GUI::AssetScheme
