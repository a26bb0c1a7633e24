#include "Plugin/Bases/StateChunk.h"

#include <algorithm>
#include <cstring>

namespace Zn::Audio::Plugin::StateChunk
{
namespace
{
constexpr juce::uint32 magic = 0x21324356; // "VC2!", read as little endian
constexpr std::size_t lengthOffset = 4, textOffset = 8;

void writeLittleEndian (char* destination, juce::uint32 value) noexcept
{
    value = juce::ByteOrder::swapIfBigEndian (value);
    std::memcpy (destination, &value, sizeof (value));
}
} // namespace

void write (std::string_view text, juce::MemoryBlock& destination)
{
    const auto length = text.size() + 1;
    destination.setSize (textOffset + length);

    auto* const bytes = static_cast<char*> (destination.getData());
    writeLittleEndian (bytes, magic);
    writeLittleEndian (bytes + lengthOffset, static_cast<juce::uint32> (length));
    std::copy (text.begin(), text.end(), bytes + textOffset);
    bytes[textOffset + text.size()] = 0;
}

std::string_view read (const void* data, int size) noexcept
{
    if (data == nullptr || size <= static_cast<int> (textOffset))
        return {};

    const auto* const bytes = static_cast<const char*> (data);
    const auto length = static_cast<juce::int32> (juce::ByteOrder::littleEndianInt (bytes + lengthOffset));

    if (juce::ByteOrder::littleEndianInt (bytes) != magic || length <= 0)
        return {};

    const auto available = static_cast<std::size_t> (size) - textOffset;
    return { bytes + textOffset, std::min (available, static_cast<std::size_t> (length)) };
}
} // namespace Zn::Audio::Plugin::StateChunk
