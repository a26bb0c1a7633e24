#include "Synth/Formats/TONQ/Header.h"

#include <algorithm>
#include <cmath>

namespace Zn::Audio::Formats::TONQ
{
namespace
{
constexpr std::string_view magic = "TONQ";
constexpr short version = 1;
constexpr std::size_t checkedSize = Header::size - 4; // all but the checksum itself
constexpr int alignment = 8;                          // bytes, of the samples

enum Encoding : short
{
    signedInteger,
    ieeeFloat
};

/** CRC-32 as zip has it: the reflected polynomial EDB88320. */
std::uint32_t checksumOf (std::span<const std::byte> bytes) noexcept
{
    constexpr std::uint32_t polynomial = 0xEDB88320;
    auto sum = ~std::uint32_t {};

    for (const auto byte : bytes)
    {
        sum ^= std::to_integer<std::uint32_t> (byte);

        for (auto bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? polynomial : 0);
    }

    return ~sum;
}
} // namespace

bool Header::isValid() const noexcept
{
    const auto hasDepth = bitsPerSample == 32 || (! isFloat && (bitsPerSample == 16 || bitsPerSample == 24));

    return hasDepth && numChannels >= 1 && numChannels <= maxChannels && std::isfinite (sampleRate)
           && sampleRate >= 1.0 && sampleRate <= maxSampleRate && metadataSize <= maxMetadataSize;
}

std::int64_t Header::dataOffset() const noexcept
{
    const auto end = std::int64_t (size) + metadataSize;
    return (end + alignment - 1) / alignment * alignment;
}

Header::Bytes Header::toBytes() const
{
    Bytes bytes {};
    juce::MemoryOutputStream out (bytes.data(), bytes.size());

    out.write (magic.data(), magic.size());
    out.writeShort (version);
    out.writeShort (short (size));
    out.writeDouble (sampleRate);
    out.writeInt64 (static_cast<juce::int64> (numFrames));
    out.writeShort (static_cast<short> (numChannels));
    out.writeShort (static_cast<short> (bitsPerSample));
    out.writeShort (isFloat ? ieeeFloat : signedInteger);
    out.writeShort (0);
    out.writeInt (static_cast<int> (metadataSize));
    out.writeInt (static_cast<int> (dataOffset()));
    out.writeInt (0);
    out.writeInt (static_cast<int> (checksumOf (std::span (bytes).first (checkedSize))));
    return bytes;
}

std::optional<Header> Header::fromBytes (std::span<const std::byte, size> bytes)
{
    juce::MemoryInputStream in (bytes.data(), bytes.size(), false);
    in.skipNextBytes (8);

    Header header;
    header.sampleRate = in.readDouble();
    header.numFrames = static_cast<std::uint64_t> (in.readInt64());
    header.numChannels = static_cast<std::uint16_t> (in.readShort());
    header.bitsPerSample = static_cast<std::uint16_t> (in.readShort());
    header.isFloat = in.readShort() == ieeeFloat;
    in.skipNextBytes (2);
    header.metadataSize = static_cast<std::uint32_t> (in.readInt());

    // Whatever it holds must be what we would have written: marks, reserved fields, offset and checksum.
    if (! header.isValid() || ! std::ranges::equal (header.toBytes(), bytes))
        return {};

    return header;
}
} // namespace Zn::Audio::Formats::TONQ
