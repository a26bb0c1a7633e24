#include "Preset.h"

#include "Errors.h"
#include "Presets/DocumentHeader.h"
#include "Presets/PresetFile.h"
#include "Presets/Reflection/JsonText.h"

#include <algorithm>

namespace Zn::PresetTool
{
namespace
{
using Audio::Plugins::Vornel::State;
using nlohmann::json;

constexpr auto megabyte = 1024 * 1024; // bytes

Presets::Base& libraryOf (State& state, Kind kind)
{
    return kind == Kind::pattern ? static_cast<Presets::Base&> (state) : state.synthPreset;
}

std::string readText (const juce::File& file, const Presets::Base& library)
{
    if (file.isDirectory())
        throw Refused ("is a directory");

    if (! file.exists())
        throw Refused ("does not exist");

    if (! Presets::PresetFile::hasExtension (file, library.getExtension()))
        throw Refused ("its name does not end in ." + library.getExtension().toStdString());

    if (file.getSize() > static_cast<juce::int64> (Json::largestPresetText))
        throw Refused ("is larger than " + std::to_string (Json::largestPresetText / megabyte) + " MiB");

    auto bytes = Presets::PresetFile::readBytes (file);

    if (! bytes)
        throw Refused ("cannot be read");

    return bytes->substr (0, bytes->find ('\0'));
}

/** What the parser says, without its own name in front and without the odd bytes that it has found. */
std::string explanationOf (const json::exception& error)
{
    std::string text = error.what();
    std::ranges::replace_if (
        text,
        [] (char c) { return c < ' ' || c > '~'; },
        '?');

    const auto end = text.find ("] ");
    return end == std::string::npos ? text : text.substr (end + 2);
}

json parse (const std::string& text)
{
    if (! Json::nestsWithinLimit (text))
        throw Refused ("nests deeper than " + std::to_string (Json::deepestNesting) + " levels");

    try
    {
        auto document = json::parse (text);

        if (! document.is_object())
            throw Refused ("holds no JSON object");

        return document;
    }
    catch (const json::exception& error)
    {
        throw Refused ("is not JSON: " + explanationOf (error));
    }
}

std::string textUnder (const json& document, const std::string& key)
{
    const auto entry = document.find (key);

    if (entry == document.end())
        throw Refused ("has no \"" + key + "\"");

    if (! entry->is_string())
        throw Refused ("its \"" + key + "\" is no text");

    return entry->get<std::string>();
}

Kind kindOf (const json& document, State& state)
{
    const auto product = textUnder (document, "product");

    for (const auto kind : { Kind::pattern, Kind::sound })
        if (product == libraryOf (state, kind).getProduct().toStdString())
            return kind;

    throw Refused ("belongs to \"" + product + "\"");
}

void checkVersion (const json& document, const Presets::Base& library)
{
    const auto text = textUnder (document, "version");
    const auto version = Version::fromText (text);

    if (version.toText() != text)
        throw Refused ("its version \"" + text + "\" is none");

    if (version < library.getMinimumVersion())
        throw Refused ("its version " + text + " is older than " + library.getMinimumVersion().toText());

    if (! library.isValid (document))
        throw Refused ("its header is not valid");
}
} // namespace

Preset readPreset (const juce::File& file)
{
    State state;
    auto document = parse (readText (file, state));
    const auto kind = kindOf (document, state);
    checkVersion (document, libraryOf (state, kind));
    return { file.getFileNameWithoutExtension(), kind, std::move (document) };
}

LoadedPreset::LoadedPreset (const Preset& presetToLoad)
    : preset (presetToLoad), library (libraryOf (state, preset.kind))
{
    state.savesParams = preset.document.value ("Params", json()).is_object();

    try
    {
        library.applyDocument (preset.document, ReflectorContext::forPresetFile());
    }
    catch (const std::exception& error)
    {
        throw Refused (std::string ("loading breaks off: ") + error.what());
    }
}

json LoadedPreset::getDocument()
{
    auto document = library.createDocument (ReflectorContext::forPresetFile());
    const auto id = library.getId();

    document["name"] = preset.name.toStdString();
    document["dirty"] = false;
    document["id"] = (id.isNotEmpty() ? id : Presets::DocumentHeader::forSaving ({}).id).toStdString();
    return document;
}
} // namespace Zn::PresetTool
