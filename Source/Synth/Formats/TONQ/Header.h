#pragma once

#include <juce_core/juce_core.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace Zn::Audio::Formats::TONQ
{
/** What the first bytes of a file say of its samples. The layout stands in Docs/tonq.md, byte for byte. */
struct Header
{
    static constexpr std::size_t size = 48; // bytes
    static constexpr int maxChannels = 32;
    static constexpr std::uint32_t maxMetadataSize = 65536; // bytes
    static constexpr double maxSampleRate = 3840000.0;      // hertz, from 1

    using Bytes = std::array<std::byte, size>;

    double sampleRate = 0.0; // hertz
    std::uint64_t numFrames = 0;
    int numChannels = 0;
    int bitsPerSample = 0;
    bool isFloat = false;           // else signed integers
    std::uint32_t metadataSize = 0; // bytes

    /** Whether it can stand in a file. */
    bool isValid() const noexcept;

    std::int64_t bytesPerFrame() const noexcept { return std::int64_t (numChannels) * (bitsPerSample / 8); }

    /** Where the samples begin: behind the metadata, at the next multiple of 8. */
    std::int64_t dataOffset() const noexcept;

    Bytes toBytes() const;

    /** Nothing when any byte is not as it should be. */
    static std::optional<Header> fromBytes (std::span<const std::byte, size> bytes);

    bool operator== (const Header&) const = default;
};
} // namespace Zn::Audio::Formats::TONQ
