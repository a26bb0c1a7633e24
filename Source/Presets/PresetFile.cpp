#include "Presets/PresetFile.h"

#include "Foundation/NativePath.h"
#include "Presets/Reflection/JsonText.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace Zn::Presets::PresetFile
{
namespace
{
/** Asks no length: that of a path may be the length of a file that has just taken the open one's place. */
std::optional<std::string> readToEnd (juce::InputStream& stream)
{
    constexpr std::size_t chunk = 16 * 1024; // most presets take one or two
    std::string bytes;

    while (bytes.size() <= Json::largestPresetText)
    {
        const auto numBefore = bytes.size();
        bytes.resize (numBefore + chunk);
        const auto numRead = stream.read (bytes.data() + numBefore, static_cast<int> (chunk));
        bytes.resize (numBefore + static_cast<std::size_t> (std::max (numRead, 0)));

        if (numRead <= 0)
            return bytes;
    }

    return {};
}
} // namespace

std::string toBytes (const nlohmann::json& document)
{
    constexpr auto indent = 4;
    auto bytes = Json::toText (document, indent);
    bytes.append ("\n\0", 2);
    return bytes;
}

nlohmann::json read (const juce::File& file)
{
    const auto bytes = readBytes (file);
    return bytes ? Json::parse (*bytes, Json::largestPresetText) : nlohmann::json();
}

std::optional<std::string> readBytes (const juce::File& file)
{
    std::error_code error;

    if (! std::filesystem::is_regular_file (nativePath (file), error)
        || file.getSize() > static_cast<juce::int64> (Json::largestPresetText))
        return {};

    juce::FileInputStream stream (file);

    if (stream.failedToOpen())
        return {};

    return readToEnd (stream);
}

bool hasExtension (const juce::File& file, const juce::String& extension)
{
    return file.getFileExtension().equalsIgnoreCase ("." + extension);
}

juce::File fileToSave (const juce::URL& destination, const juce::String& extension)
{
    if (! destination.isLocalFile())
        return {};

    const auto chosen = destination.getLocalFile();
    const auto name = juce::File::createLegalFileName (chosen.getFileName()).trim();
    const auto hasOurs = hasExtension (chosen, extension);
    const auto stem = hasOurs ? name.dropLastCharacters (extension.length() + 1) : name;

    if (stem.isEmpty())
        return {};

    const auto file = chosen.getSiblingFile (hasOurs ? name : name + "." + extension);
    return file.isDirectory() || ! file.hasWriteAccess() ? juce::File() : file;
}
} // namespace Zn::Presets::PresetFile
