#include "Presets/FactoryArchive.h"

#include "Presets/Reflection/JsonText.h"

#include <algorithm>
#include <memory>

namespace Zn::Presets
{
namespace
{
constexpr auto largestFile = static_cast<juce::int64> (Json::largestPresetText);

bool isSafeName (const juce::String& name)
{
    return name.isNotEmpty() && name != "." && name != ".." && ! name.startsWithChar ('~')
           && ! name.containsAnyOf (":\\") && ! name.contains (foreignFolder);
}

bool isSafePath (const juce::String& path)
{
    if (path.isEmpty() || path.startsWithChar ('/') || path.endsWithChar ('/'))
        return false;

    const auto names = juce::StringArray::fromTokens (path, "/", {});
    return std::all_of (names.begin(), names.end(), isSafeName);
}
} // namespace

FactoryArchive::FactoryArchive (Binaries::Bytes zip)
    : stream (zip.data(), zip.size(), false), zipFile (stream)
{}

juce::String FactoryArchive::pathOf (int index) const
{
    const auto* entry = zipFile.getEntry (index);

    if (entry == nullptr || entry->isSymbolicLink || entry->uncompressedSize > largestFile)
        return {};

    const auto path = entry->filename.replaceCharacter ('\\', '/');
    return isSafePath (path) ? path : juce::String();
}

std::optional<std::string> FactoryArchive::read (int index)
{
    const auto* entry = zipFile.getEntry (index);

    if (entry == nullptr || entry->uncompressedSize > largestFile)
        return {};

    const std::unique_ptr<juce::InputStream> contents (zipFile.createStreamForEntry (index));

    if (contents == nullptr)
        return {};

    // One byte more than promised shows an entry that holds more; nothing else about an entry's size is believed.
    std::string bytes (static_cast<std::size_t> (entry->uncompressedSize) + 1, '\0');
    const auto numRead = contents->read (bytes.data(), static_cast<int> (bytes.size()));

    if (numRead != entry->uncompressedSize)
        return {};

    bytes.pop_back();
    return bytes;
}

std::optional<std::string> FactoryArchive::read (const juce::String& path)
{
    for (auto i = 0; i < size(); ++i)
        if (path.isNotEmpty() && pathOf (i) == path)
            return read (i);

    return {};
}
} // namespace Zn::Presets
