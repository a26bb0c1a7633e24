#include "Synth/Formats/TONQ/Format.h"

#include "Synth/Formats/TONQ/Header.h"
#include "Synth/Formats/TONQ/Metadata.h"
#include "Synth/Formats/TONQ/Reader.h"
#include "Synth/Formats/TONQ/Writer.h"

namespace Zn::Audio::Formats::TONQ
{
namespace
{
enum QualityOption
{
    floatingPoint,
    wholeNumbers
};
}

Format::Format() : AudioFormat (nameOfFormat, ".tnq") {}

juce::Array<int> Format::getPossibleSampleRates()
{
    constexpr auto ofWavetables = 1920000;
    return { 8000,  11025, 12000, 16000,  22050,  24000,  32000,  44100,
             48000, 88200, 96000, 176400, 192000, 352800, 384000, ofWavetables };
}

bool Format::isChannelLayoutSupported (const juce::AudioChannelSet& channels)
{
    return channels.size() >= 1 && channels.size() <= Header::maxChannels;
}

juce::StringArray Format::getQualityOptions()
{
    return { "32 bits are floating point", "32 bits are whole numbers" };
}

juce::AudioFormatReader* Format::createReaderFor (juce::InputStream* stream, bool deleteStreamIfOpeningFails)
{
    auto owned = std::unique_ptr<juce::InputStream> (stream);

    if (auto reader = Reader::open (owned))
        return reader.release();

    if (! deleteStreamIfOpeningFails)
        owned.release();

    return nullptr;
}

juce::AudioFormatWriter* Format::createWriterFor (juce::OutputStream* stream,
                                                  double sampleRate,
                                                  unsigned int numChannels,
                                                  int bitsPerSample,
                                                  const juce::StringPairArray& metadata,
                                                  int qualityOptionIndex)
{
    if (stream == nullptr || numChannels > unsigned (Header::maxChannels)
        || ! stream->setPosition (stream->getPosition()))
        return nullptr;

    auto text = bytesFrom (metadata);
    const Header header { .sampleRate = sampleRate,
                          .numChannels = static_cast<int> (numChannels),
                          .bitsPerSample = bitsPerSample,
                          .isFloat = bitsPerSample == 32 && qualityOptionIndex != wholeNumbers,
                          .metadataSize = static_cast<std::uint32_t> (text.getSize()) };

    return header.isValid() ? std::make_unique<Writer> (stream, header, text).release() : nullptr;
}
} // namespace Zn::Audio::Formats::TONQ
