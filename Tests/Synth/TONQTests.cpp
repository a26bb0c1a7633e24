#include "Foundation/Singleton.h"
#include "Synth/Formats/TONQ/Format.h"
#include "Synth/Formats/TONQ/Header.h"
#include "Synth/Sampler/SourceReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace Zn::Audio::Formats::TONQ
{
namespace
{
using Bytes = std::vector<std::uint8_t>;

struct Sound
{
    std::vector<std::vector<int>> channels; // left-aligned, or bits of floats
    int numFrames() const { return static_cast<int> (channels.front().size()); }
};

struct Layout
{
    int bitsPerSample, quality, numChannels, numFrames;
};

std::ostream& operator<< (std::ostream& out, const Layout& layout)
{
    return out << layout.bitsPerSample << " bits, quality " << layout.quality << ", " << layout.numChannels
               << " channels, " << layout.numFrames << " frames";
}

/** Any samples that the layout can hold; as floats all bits there are, also those that are no numbers. */
Sound noise (const Layout& layout)
{
    juce::Random random (layout.bitsPerSample + layout.numChannels);
    const auto unused = 32 - layout.bitsPerSample;
    Sound sound;

    for (auto channel = 0; channel < layout.numChannels; ++channel)
    {
        auto& samples = sound.channels.emplace_back();

        for (auto frame = 0; frame < layout.numFrames; ++frame)
            samples.push_back (
                static_cast<int> (static_cast<unsigned> (random.nextInt()) >> unused << unused));
    }

    return sound;
}

Bytes written (const Sound& sound, const Layout& layout, const juce::StringPairArray& metadata = {})
{
    juce::MemoryBlock block;
    auto stream = std::make_unique<juce::MemoryOutputStream> (block, false);
    std::unique_ptr<juce::AudioFormatWriter> writer (
        Format().createWriterFor (stream.get(),
                                  48000.0,
                                  static_cast<unsigned> (layout.numChannels),
                                  layout.bitsPerSample,
                                  metadata,
                                  layout.quality));

    if (writer == nullptr)
        return {};

    stream.release();
    std::vector<const int*> channels;

    for (const auto& samples : sound.channels)
        channels.push_back (samples.data());

    EXPECT_TRUE (writer->write (channels.data(), sound.numFrames()));
    writer.reset();

    const auto* data = static_cast<const std::uint8_t*> (block.getData());
    return { data, data + block.getSize() };
}

std::unique_ptr<juce::AudioFormatReader> opened (const Bytes& file)
{
    auto* stream = new juce::MemoryInputStream (file.data(), file.size(), true);
    return std::unique_ptr<juce::AudioFormatReader> (Format().createReaderFor (stream, true));
}

std::vector<std::vector<int>>
readFrom (juce::AudioFormatReader& reader, int numChannels, juce::int64 start, int numFrames)
{
    std::vector<std::vector<int>> samples (std::size_t (numChannels),
                                           std::vector<int> (std::size_t (numFrames), 1));
    std::vector<int*> channels;

    for (auto& channel : samples)
        channels.push_back (channel.data());

    EXPECT_TRUE (reader.readSamples (channels.data(), numChannels, 0, start, numFrames));
    return samples;
}

/** Two frames (1, -1) and (32767, -32768) at 48 kHz, as the format's description lists them. */
const Bytes smallFile {
    0x54, 0x4F, 0x4E, 0x51, 0x01, 0x00, 0x30, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x70, 0xE7, 0x40, //
    0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x02, 0x00, 0x10, 0x00, 0x00, 0x00, 0x00, 0x00, //
    0x00, 0x00, 0x00, 0x00, 0x30, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x49, 0x3A, 0x68, 0xE2, //
    0x01, 0x00, 0xFF, 0xFF, 0xFF, 0x7F, 0x00, 0x80
};

constexpr std::size_t headerSize = 48;
} // namespace

TEST (TONQ, IsWrittenByteForByteAsDescribed)
{
    const Sound sound { { { 1 << 16, 32767 << 16 }, { -1 * (1 << 16), std::numeric_limits<int>::min() } } };
    EXPECT_EQ (written (sound, { 16, 0, 2, 2 }), smallFile);
}

TEST (TONQ, GivesBackEverySampleAndEverySlice)
{
    constexpr auto quality32Int = 1;
    std::vector<Layout> layouts;

    for (const auto numFrames : { 0, 1, 4095, 4096, 10000 })
        for (const auto numChannels : { 1, 2, 3, 16, 32 })
            for (const auto& [bits, quality] :
                 std::initializer_list<std::pair<int, int>> { { 16, 0 },
                                                              { 24, 0 },
                                                              { 32, 0 },
                                                              { 32, quality32Int } })
                layouts.push_back ({ bits, quality, numChannels, numFrames });

    layouts.push_back ({ 16, 0, 1, 10'000'000 });

    for (const auto& layout : layouts)
    {
        const auto sound = noise (layout);
        const auto reader = opened (written (sound, layout));
        ASSERT_NE (reader, nullptr) << layout;
        EXPECT_EQ (reader->lengthInSamples, layout.numFrames) << layout;
        EXPECT_EQ (reader->usesFloatingPointData, layout.bitsPerSample == 32 && layout.quality == 0)
            << layout;
        EXPECT_EQ (readFrom (*reader, layout.numChannels, 0, layout.numFrames), sound.channels) << layout;

        for (auto [start, length] :
             std::initializer_list<std::pair<int, int>> { { 0, 1 }, { 4000, 200 }, { 9999, 1 } })
        {
            const auto slice = readFrom (*reader, 1, start, length).front();

            for (auto i = 0; i < length; ++i)
                ASSERT_EQ (slice[std::size_t (i)],
                           start + i < layout.numFrames ? sound.channels[0][std::size_t (start + i)] : 0)
                    << layout << ", frame " << start + i;
        }
    }
}

TEST (TONQ, KeepsMetadataAndDropsWhatIsUnfinished)
{
    juce::StringPairArray metadata;
    metadata.set ("title", juce::String::fromUTF8 ("Glas \xc3\xa4"));
    metadata.set ("artist", "");

    const Layout layout { 24, 0, 1, 3 };
    auto file = written (noise (layout), layout, metadata);
    EXPECT_EQ (opened (file)->metadataValues, metadata);
    EXPECT_EQ (readFrom (*opened (file), 1, 0, 3), noise (layout).channels) << "behind padding";

    const auto closingNul =
        headerSize + std::string_view ("title").size() + 1 + std::string_view ("Glas ").size() + 2;
    ASSERT_EQ (file[closingNul], 0);
    std::fill (file.begin() + static_cast<std::ptrdiff_t> (closingNul),
               file.begin() + 72,
               std::uint8_t { 'x' });
    ASSERT_NE (opened (file), nullptr);
    EXPECT_EQ (opened (file)->metadataValues.size(), 0);

    file = written (noise (layout), layout, metadata);
    file[headerSize + std::string_view ("title").size() + 1] = 0xFF;
    EXPECT_EQ (opened (file)->metadataValues.getAllKeys(), juce::StringArray ("artist")) << "of no UTF-8";

    metadata.set ("long", juce::String::repeatedString ("x", 70000));
    EXPECT_EQ (opened (written (noise (layout), layout, metadata))->metadataValues.size(), 2);
}

TEST (TONQ, OpensWhatIsLeftOfAFileAndNothingWithAWrongHeader)
{
    for (auto length = std::size_t {}; length <= smallFile.size(); ++length)
    {
        const auto reader = opened (Bytes (smallFile.begin(), smallFile.begin() + std::ptrdiff_t (length)));
        ASSERT_EQ (reader != nullptr, length >= headerSize) << length;

        if (reader != nullptr)
        {
            EXPECT_EQ (reader->lengthInSamples, juce::int64 (length - headerSize) / 4) << length;
        }
    }

    for (auto bit = 0u; bit < 8 * headerSize; ++bit)
    {
        auto file = smallFile;
        file[bit / 8] ^= static_cast<std::uint8_t> (1u << bit % 8);
        EXPECT_EQ (opened (file), nullptr) << "bit " << bit;
    }
}

TEST (TONQ, BelievesNoNumberThatTheFileCannotKeep)
{
    const Header plain { .sampleRate = 48000.0,
                         .numFrames = 2,
                         .numChannels = 2,
                         .bitsPerSample = 16,
                         .isFloat = false };

    const auto framesWith = [&] (const std::function<void (Header&)>& change) -> juce::int64 {
        auto header = plain;
        change (header);

        Bytes file (smallFile);
        const auto bytes = header.toBytes(); // its checksum is right, whatever it says
        std::transform (bytes.begin(), bytes.end(), file.begin(), [] (std::byte byte) {
            return std::to_integer<std::uint8_t> (byte);
        });

        const auto reader = opened (file);
        return reader != nullptr ? reader->lengthInSamples : -1;
    };

    constexpr auto refused = juce::int64 { -1 };
    const auto infinite = std::numeric_limits<double>::infinity();

    for (const auto numFrames : { ~0ull, 1ull << 63, (1ull << 62) + 1, 3ull })
        EXPECT_EQ (framesWith ([=] (auto& h) { h.numFrames = numFrames; }), 2) << numFrames;

    for (const auto& [numChannels, expected] :
         { std::pair (32, juce::int64 {}), { 33, refused }, { 0, refused }, { 65535, refused } })
        EXPECT_EQ (framesWith ([n = numChannels] (auto& h) {
                       h.numChannels = n;
                       h.numFrames = ~0ull;
                   }),
                   expected)
            << numChannels;

    for (const auto bits : { 0, 8, 17, 64, 65535 })
        EXPECT_EQ (framesWith ([=] (auto& h) { h.bitsPerSample = bits; }), refused) << bits;

    for (const auto rate : { 0.0, -48000.0, 1e9, infinite, std::nan ("") })
        EXPECT_EQ (framesWith ([=] (auto& h) { h.sampleRate = rate; }), refused) << rate;

    for (const auto size : { 9u, 65536u, 65537u, ~0u })
        EXPECT_EQ (framesWith ([=] (auto& h) { h.metadataSize = size; }), refused) << size;

    EXPECT_EQ (framesWith ([] (auto& h) { h.isFloat = true; }), refused) << "of 16 bits";
    EXPECT_EQ (framesWith ([] (auto& h) { h.metadataSize = 8; }), 0) << "behind which nothing is left";
}

TEST (TONQ, RefusesSoundHeadersOfWhatItCannotHold)
{
    const auto sound = noise ({ 16, 0, 2, 2 });

    for (const auto& layout :
         std::initializer_list<Layout> { { 8, 0, 2, 2 }, { 20, 0, 2, 2 }, { 16, 0, 0, 2 }, { 16, 0, 33, 2 } })
        EXPECT_TRUE (written (sound, layout).empty()) << layout;

    for (const auto rate : { 0.0, -1.0, 1e9, std::numeric_limits<double>::quiet_NaN() })
    {
        juce::MemoryOutputStream stream;
        EXPECT_EQ (Format().createWriterFor (&stream, rate, 2, 16, {}, 0), nullptr) << rate;
        EXPECT_EQ (stream.getDataSize(), 0) << "the stream is the caller's still";
    }
}

TEST (TONQ, StopsWhenTheDiskIsFull)
{
    std::array<char, 100> disk {};
    auto* stream = new juce::MemoryOutputStream (disk.data(), disk.size());
    std::unique_ptr<juce::AudioFormatWriter> writer (
        Format().createWriterFor (stream, 48000.0, 1, 16, {}, 0));
    const auto sound = noise ({ 16, 0, 1, 20 });
    const int* channels[] = { sound.channels[0].data() };

    EXPECT_TRUE (writer->write (channels, 20));
    EXPECT_FALSE (writer->write (channels, 20));
    EXPECT_FALSE (writer->write (channels, 1)) << "a hole would follow";
}

TEST (TONQ, IsReadWhereverSoundIs)
{
    const Singleton::UserToken singletonsStay;
    const auto bytes = std::as_bytes (std::span (smallFile));
    const auto reader = Sampler::Source::Reader::open (Sampler::MemorySource (bytes));

    ASSERT_NE (reader, nullptr);
    EXPECT_EQ (reader->getNumFrames(), 2);
    EXPECT_EQ (reader->getNumChannels(), 2);

    for (const auto numMissing : { 1u, 4u, 8u })
        EXPECT_EQ (
            Sampler::Source::Reader::open (Sampler::MemorySource (bytes.first (bytes.size() - numMissing))),
            nullptr)
            << numMissing;
}
} // namespace Zn::Audio::Formats::TONQ
