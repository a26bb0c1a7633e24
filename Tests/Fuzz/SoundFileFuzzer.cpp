#include "Fuzz/Environment.h"

#include "Synth/Formats/TONQ/Header.h"
#include "Synth/Sampler/ResampledInternalBuffer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

extern "C" std::size_t LLVMFuzzerMutate (std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace
{
using Zn::Audio::Formats::TONQ::Header;

/** A header of ours with a true checksum, of which the bytes that stand in its place choose the numbers. */
Header::Bytes soundHeader (std::span<const std::uint8_t> bytes)
{
    constexpr auto depths = std::array { 16, 24, 32 };
    const auto bits = depths[bytes[26] % depths.size()];
    return Header { .sampleRate = 1.0 + bytes[8] * 1000.0,
                    .numFrames = bytes[16] * std::uint64_t { bytes[23] } << (bytes[22] % 56),
                    .numChannels = 1 + bytes[24] % Header::maxChannels,
                    .bitsPerSample = bits,
                    .isFloat = bits == 32 && bytes[28] % 2 != 0,
                    .metadataSize = bytes[32] }
        .toBytes();
}
} // namespace

/** Random bytes would never have the right checksum, so every other try is given it. */
extern "C" std::size_t
LLVMFuzzerCustomMutator (std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    size = LLVMFuzzerMutate (data, size, maxSize);

    if (seed % 2 != 0 && size >= Header::size)
    {
        const auto header = soundHeader ({ data, size });
        std::transform (header.begin(), header.end(), data, [] (std::byte byte) {
            return std::to_integer<std::uint8_t> (byte);
        });
    }

    return size;
}

extern "C" int LLVMFuzzerInitialize (int*, char***)
{
    Zn::Fuzz::startJuce();
    return 0;
}

/** A file that somebody has put among the wavetables. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    using namespace Zn::Audio::Sampler;

    const MemorySource source (std::as_bytes (std::span (data, size)));

    if (const auto reader = Source::Reader::open (source))
    {
        constexpr auto shrinking = 16.0; // a wavetable's own rate would make each run slow
        constexpr auto readBlock = 1024;
        ResampledInternalBuffer (*reader, reader->getFileRate() / shrinking, readBlock);
    }

    return 0;
}
