#include "Synth/Formats/TONQ/Reader.h"

#include "Synth/Formats/TONQ/Metadata.h"

#include <algorithm>
#include <utility>

namespace Zn::Audio::Formats::TONQ
{
namespace
{
std::optional<Header> readHeader (juce::InputStream& stream)
{
    Header::Bytes bytes {};

    if (stream.read (bytes.data(), int (bytes.size())) != int (bytes.size()))
        return {};

    auto header = Header::fromBytes (bytes);

    if (! header || stream.getTotalLength() < header->dataOffset())
        return {};

    return header;
}
} // namespace

std::unique_ptr<Reader> Reader::open (std::unique_ptr<juce::InputStream>& stream)
{
    if (stream == nullptr)
        return nullptr;

    const auto header = readHeader (*stream);
    return header ? std::unique_ptr<Reader> (new Reader (std::move (stream), *header)) : nullptr;
}

Reader::Reader (std::unique_ptr<juce::InputStream> stream, const Header& headerToUse)
    : AudioFormatReader (stream.release(), nameOfFormat)
    , header (headerToUse)
    , buffer (static_cast<std::size_t> (header.bytesPerFrame() * framesAtATime))
{
    const auto available = (input->getTotalLength() - header.dataOffset()) / header.bytesPerFrame();

    sampleRate = header.sampleRate;
    bitsPerSample = static_cast<unsigned> (header.bitsPerSample);
    numChannels = static_cast<unsigned> (header.numChannels);
    usesFloatingPointData = header.isFloat;
    lengthInSamples =
        static_cast<juce::int64> (std::min (header.numFrames, static_cast<std::uint64_t> (available)));
    readMetadata();
}

bool Reader::isWhole() const noexcept
{
    return static_cast<std::uint64_t> (lengthInSamples) == header.numFrames;
}

void Reader::readMetadata()
{
    juce::MemoryBlock text;

    if (input->readIntoMemoryBlock (text, header.metadataSize) == header.metadataSize)
        metadataValues = metadataFrom (text);
}

bool Reader::readSamples (int* const* channels,
                          int numWantedChannels,
                          int startInChannels,
                          juce::int64 startFrame,
                          int numWantedFrames)
{
    clearSamplesBeyondAvailableLength (channels,
                                       numWantedChannels,
                                       startInChannels,
                                       startFrame,
                                       numWantedFrames,
                                       lengthInSamples);

    if (numWantedFrames <= 0)
        return true;

    input->setPosition (header.dataOffset() + startFrame * header.bytesPerFrame());

    while (numWantedFrames > 0)
    {
        const auto numFrames = std::min (numWantedFrames, framesAtATime);
        const auto numBytes = static_cast<int> (numFrames * header.bytesPerFrame());
        const auto numRead = std::max (0, input->read (buffer.data(), numBytes));

        // What cannot be read, though it was there when the file was opened, is silence.
        std::fill (buffer.begin() + numRead, buffer.begin() + numBytes, std::byte {});
        convert (channels, numWantedChannels, startInChannels, numFrames);

        if (numRead < numBytes)
            return false;

        startInChannels += numFrames;
        numWantedFrames -= numFrames;
    }

    return true;
}

void Reader::convert (int* const* channels, int numWantedChannels, int start, int numFrames) const
{
    using Data = juce::AudioData;

    const auto take = [&]<typename Target, typename Source> (Target, Source) {
        ReadHelper<Target, Source, Data::LittleEndian>::read (channels,
                                                              start,
                                                              numWantedChannels,
                                                              buffer.data(),
                                                              header.numChannels,
                                                              numFrames);
    };

    if (header.isFloat || header.bitsPerSample == 32) // the bits as they are
        take (Data::Int32 (nullptr), Data::Int32 (nullptr));
    else if (header.bitsPerSample == 24)
        take (Data::Int32 (nullptr), Data::Int24 (nullptr));
    else
        take (Data::Int32 (nullptr), Data::Int16 (nullptr));
}
} // namespace Zn::Audio::Formats::TONQ
