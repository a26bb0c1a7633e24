#pragma once

#include <juce_audio_formats/juce_audio_formats.h>

namespace Zn::Audio::Formats::TONQ
{
/** Sound files of our own, ".tnq": samples as they are, one after the other behind a header that is checked, so that
    any place is found by one multiplication. Thread: any but audio.
*/
class Format : public juce::AudioFormat
{
public:
    Format();

    juce::Array<int> getPossibleSampleRates() override;
    juce::Array<int> getPossibleBitDepths() override { return { 16, 24, 32 }; }
    bool canDoStereo() override { return true; }
    bool canDoMono() override { return true; }
    bool isChannelLayoutSupported (const juce::AudioChannelSet& channels) override;

    /** What 32 bits are: first floating point, then whole numbers. */
    juce::StringArray getQualityOptions() override;

    /** Null when the header is not sound in every byte or the length of the stream is unknown. A file that breaks off
        has the whole frames that are there.
    */
    juce::AudioFormatReader* createReaderFor (juce::InputStream* stream,
                                              bool deleteStreamIfOpeningFails) override;

    /** Null for numbers that a header cannot hold, and for a stream that cannot go back to its header. */
    juce::AudioFormatWriter* createWriterFor (juce::OutputStream* stream,
                                              double sampleRate,
                                              unsigned int numChannels,
                                              int bitsPerSample,
                                              const juce::StringPairArray& metadata,
                                              int qualityOptionIndex) override;

    using AudioFormat::createWriterFor;
};
} // namespace Zn::Audio::Formats::TONQ
