#pragma once

#include "Synth/WavetableSynth/TableSources.h"

#include <cmath>
#include <functional>
#include <numbers>

namespace Zn::Tests
{
constexpr double twoPi = 2.0 * std::numbers::pi;

struct WavFormat
{
    double sampleRate = 192000.0;
    int bits = 32; // 32 is floating point
};

/** A cycle of as many channels as there are shapes, each a function of the place from 0 to 1. */
using Shape = std::function<double (double phase)>;

inline juce::AudioBuffer<float> cycleOf (int numFrames, const std::vector<Shape>& shapes)
{
    juce::AudioBuffer<float> cycle (static_cast<int> (shapes.size()), numFrames);

    for (auto channel = 0; channel < cycle.getNumChannels(); ++channel)
        for (auto i = 0; i < numFrames; ++i)
            cycle.setSample (
                channel,
                i,
                static_cast<float> (shapes[static_cast<size_t> (channel)](double (i) / numFrames)));

    return cycle;
}

/** A whole WAV file. */
inline juce::MemoryBlock wavBytes (const juce::AudioBuffer<float>& sound, WavFormat format = {})
{
    juce::MemoryBlock bytes;
    const std::unique_ptr<juce::AudioFormatWriter> writer { juce::WavAudioFormat {}.createWriterFor (
        new juce::MemoryOutputStream (bytes, false),
        format.sampleRate,
        static_cast<unsigned int> (sound.getNumChannels()),
        format.bits,
        {},
        0) };

    writer->writeFromAudioSampleBuffer (sound, 0, sound.getNumSamples());
    return bytes;
}

/** A source that owns what it reads. */
class BytesSource : public Audio::Sampler::Source
{
public:
    explicit BytesSource (juce::MemoryBlock bytesToUse) : bytes (std::move (bytesToUse)) {}

    std::unique_ptr<juce::InputStream> createStream() const override
    {
        return std::make_unique<juce::MemoryInputStream> (bytes, true);
    }

private:
    const juce::MemoryBlock bytes;
};

inline Audio::WavetableSynth::TableSource tableSource (const juce::String& displayName,
                                                       juce::MemoryBlock bytes)
{
    return { displayName, std::make_unique<BytesSource> (std::move (bytes)) };
}

inline double sine (double phase)
{
    return std::sin (twoPi * phase);
}

/** A falling saw of so many harmonics. */
inline Shape saw (int numHarmonics)
{
    return [numHarmonics] (double phase) {
        auto sum = 0.0;

        for (auto h = 1; h <= numHarmonics; ++h)
            sum += std::sin (twoPi * h * phase) / h;

        return 0.5 * sum;
    };
}
} // namespace Zn::Tests
