#include "Synth/Formats/TONQ/Writer.h"

#include "Synth/Formats/TONQ/Reader.h"

#include <algorithm>

namespace Zn::Audio::Formats::TONQ
{
Writer::Writer (juce::OutputStream* stream, const Header& headerToUse, const juce::MemoryBlock& metadata)
    : AudioFormatWriter (stream,
                         nameOfFormat,
                         headerToUse.sampleRate,
                         static_cast<unsigned> (headerToUse.numChannels),
                         static_cast<unsigned> (headerToUse.bitsPerSample))
    , header (headerToUse)
    , headerPosition (stream->getPosition())
    , buffer (static_cast<std::size_t> (header.bytesPerFrame() * framesAtATime))
{
    usesFloatingPointData = header.isFloat;

    const auto end = static_cast<juce::int64> (Header::size + metadata.getSize());
    const auto padding = static_cast<std::size_t> (header.dataOffset() - end);
    hasFailed = ! (writeHeader() && output->write (metadata.getData(), metadata.getSize())
                   && output->writeRepeatedByte (0, padding));
}

Writer::~Writer()
{
    flush();
}

bool Writer::writeHeader()
{
    const auto bytes = header.toBytes();
    return output->write (bytes.data(), bytes.size());
}

bool Writer::write (const int** channels, int numFrames)
{
    for (auto start = 0; start < numFrames && ! hasFailed; start += framesAtATime)
        hasFailed = ! writeSome (channels, start, std::min (framesAtATime, numFrames - start));

    return ! hasFailed;
}

bool Writer::writeSome (const int** channels, int start, int numFrames)
{
    using Data = juce::AudioData;

    const auto put = [&]<typename Target> (Target) {
        WriteHelper<Target, Data::Int32, Data::LittleEndian>::write (buffer.data(),
                                                                     header.numChannels,
                                                                     channels,
                                                                     numFrames,
                                                                     start);
    };

    if (header.bitsPerSample == 32) // floating point too, as its bits are
        put (Data::Int32 (nullptr));
    else if (header.bitsPerSample == 24)
        put (Data::Int24 (nullptr));
    else
        put (Data::Int16 (nullptr));

    if (! output->write (buffer.data(), static_cast<std::size_t> (numFrames * header.bytesPerFrame())))
        return false;

    header.numFrames += static_cast<std::uint64_t> (numFrames);
    return true;
}

bool Writer::flush()
{
    const auto end = output->getPosition();
    const auto isWritten = output->setPosition (headerPosition) && writeHeader() && output->setPosition (end);
    output->flush();
    hasFailed = hasFailed || ! isWritten;
    return ! hasFailed;
}
} // namespace Zn::Audio::Formats::TONQ
