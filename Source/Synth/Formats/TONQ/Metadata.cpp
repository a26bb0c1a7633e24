#include "Synth/Formats/TONQ/Metadata.h"

#include "Synth/Formats/TONQ/Header.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace Zn::Audio::Formats::TONQ
{
namespace
{
/** The text up to the next NUL, which is taken from the rest as well. */
std::optional<std::string_view> takeText (std::string_view& rest)
{
    const auto end = rest.find ('\0');

    if (end == std::string_view::npos)
        return {};

    const auto text = rest.substr (0, end);
    rest.remove_prefix (end + 1);
    return text;
}

bool isUTF8 (std::string_view text)
{
    return juce::CharPointer_UTF8::isValidString (text.data(), static_cast<int> (text.size()));
}

juce::String stringFrom (std::string_view text)
{
    return juce::String::fromUTF8 (text.data(), static_cast<int> (text.size()));
}
} // namespace

juce::MemoryBlock bytesFrom (const juce::StringPairArray& metadata)
{
    juce::MemoryOutputStream out;

    for (const auto& key : metadata.getAllKeys())
    {
        const auto& value = metadata[key];
        const auto size = key.getNumBytesAsUTF8() + value.getNumBytesAsUTF8() + 2;

        if (out.getDataSize() + size > Header::maxMetadataSize)
            break;

        out.writeString (key);
        out.writeString (value);
    }

    return out.getMemoryBlock();
}

juce::StringPairArray metadataFrom (const juce::MemoryBlock& bytes)
{
    std::string_view rest (static_cast<const char*> (bytes.getData()), bytes.getSize());
    juce::StringPairArray metadata (false);

    while (const auto key = takeText (rest))
    {
        const auto value = takeText (rest);

        if (! value)
            break;

        if (isUTF8 (*key) && isUTF8 (*value))
            metadata.set (stringFrom (*key), stringFrom (*value));
    }

    return metadata;
}
} // namespace Zn::Audio::Formats::TONQ
