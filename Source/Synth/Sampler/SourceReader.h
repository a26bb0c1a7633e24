#pragma once

#include "Synth/Sampler/Source.h"

#include <atomic>

namespace Zn::Audio::Sampler
{
/** The samples of a source, and how they are wanted: at which rate, and in blocks of how many samples.

    Several may read the same one, each by itself; the rate and the block may be set from any thread.
    Thread: any but audio.
*/
class Source::Reader
{
public:
    /** Null when the content is of no format that is known, is cut short, or has numbers that make no sense. */
    static std::shared_ptr<Reader> open (const Source& source);

    juce::int64 getNumFrames() const noexcept { return reader->lengthInSamples; }
    int getNumChannels() const noexcept { return static_cast<int> (reader->numChannels); }
    double getFileRate() const noexcept { return reader->sampleRate; }

    /** Stores what differs from before. */
    void setRateAndBlock (double newRate, int newBlock) noexcept;
    double getRate() const noexcept { return rate; }
    int getBlock() const noexcept { return block; }

    /** Fills the first channels of the source into a buffer that has no more than it. False when it cannot. */
    bool
    read (juce::AudioBuffer<float>& destination, int startInDestination, juce::int64 start, int numFrames);

private:
    explicit Reader (std::unique_ptr<juce::AudioFormatReader> readerToUse);

    const std::unique_ptr<juce::AudioFormatReader> reader;
    std::atomic<double> rate { 0.0 }; // hertz that it is to be resampled to
    std::atomic<int> block { 0 };     // samples that are read at a time
};
} // namespace Zn::Audio::Sampler
