#include "Synth/Sampler/SourceReader.h"

#include "Synth/Formats/TONQ/Reader.h"
#include "Synth/Sampler/FormatManager.h"

#include <algorithm>

namespace Zn::Audio::Sampler
{
namespace
{
constexpr unsigned int maxChannels = 32;
constexpr double highestRate = 3840000.0; // hertz

bool isSensible (const juce::AudioFormatReader& reader) noexcept
{
    const auto depths = { 8u, 16u, 24u, 32u };

    return reader.numChannels >= 1 && reader.numChannels <= maxChannels && reader.sampleRate >= 1.0
           && reader.sampleRate <= highestRate && reader.lengthInSamples > 0
           && std::find (depths.begin(), depths.end(), reader.bitsPerSample) != depths.end();
}

/** Where the stream stands once it has given one frame. */
juce::int64 positionAfter (juce::AudioFormatReader& reader, juce::int64 frame)
{
    float unused = 0.0f;
    float* channel = &unused;
    reader.read (&channel, 1, frame, 1);
    return reader.input->getPosition();
}

/** Whether all the samples that the header speaks of are there. Readers would give silence for the others. */
bool isWhole (juce::AudioFormatReader& reader)
{
    if (const auto* tonq = dynamic_cast<const Formats::TONQ::Reader*> (&reader))
        return tonq->isWhole();

    const juce::int64 bytesPerFrame = reader.numChannels * (reader.bitsPerSample / 8);
    const auto lastFrame = reader.lengthInSamples - 1;

    return lastFrame < reader.input->getTotalLength() / bytesPerFrame
           && positionAfter (reader, lastFrame) - positionAfter (reader, 0) == lastFrame * bytesPerFrame;
}
} // namespace

std::shared_ptr<Source::Reader> Source::Reader::open (const Source& source)
{
    auto stream = source.createStream();

    if (stream == nullptr)
        return nullptr;

    auto reader = Singleton::get<FormatManager>().createReader (std::move (stream));

    if (reader == nullptr || ! isSensible (*reader) || ! isWhole (*reader))
        return nullptr;

    return std::shared_ptr<Reader> (new Reader (std::move (reader)));
}

Source::Reader::Reader (std::unique_ptr<juce::AudioFormatReader> readerToUse)
    : reader (std::move (readerToUse))
{}

void Source::Reader::setRateAndBlock (double newRate, int newBlock) noexcept
{
    if (rate.load() != newRate)
        rate.exchange (newRate);

    if (block.load() != newBlock)
        block.exchange (newBlock);
}

bool Source::Reader::read (juce::AudioBuffer<float>& destination,
                           int startInDestination,
                           juce::int64 start,
                           int numFrames)
{
    const auto numChannels = destination.getNumChannels();
    jassert (numChannels <= getNumChannels() && numChannels <= 2);

    float* channels[2] = {};

    for (auto channel = 0; channel < numChannels; ++channel)
        channels[channel] = destination.getWritePointer (channel, startInDestination);

    return reader->read (channels, numChannels, start, numFrames);
}
} // namespace Zn::Audio::Sampler
