#include "Synth/Sampler/ResampledInternalBuffer.h"

#include "Foundation/Singleton.h"
#include "Synth/Sampler/PeriodicSinc.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Zn::Audio::Sampler
{
namespace
{
using Samples = juce::AudioBuffer<float>;

std::span<const float> channelOf (const Samples& samples, int channel)
{
    return { samples.getReadPointer (channel), static_cast<std::size_t> (samples.getNumSamples()) };
}

bool isFinite (const Samples& samples)
{
    for (auto channel = 0; channel < samples.getNumChannels(); ++channel)
        for (const auto sample : channelOf (samples, channel))
            if (! std::isfinite (sample))
                return false;

    return true;
}

bool hasEqualSides (const Samples& samples)
{
    const auto left = channelOf (samples, 0), right = channelOf (samples, 1);
    return std::equal (left.begin(), left.end(), right.begin());
}

/** The first two channels; none when something in them cannot be read or is not a number. */
Samples readAll (Source::Reader& reader)
{
    const auto numFrames = static_cast<int> (reader.getNumFrames());
    Samples samples (std::min (2, reader.getNumChannels()), numFrames);

    for (auto start = 0; start < numFrames;)
    {
        const auto length = std::min (std::max (1, reader.getBlock()), numFrames - start);

        if (! reader.read (samples, start, start, length))
            return {};

        start += length;
    }

    return isFinite (samples) ? samples : Samples {};
}

Samples resampled (const Samples& source, int numSamples)
{
    const auto numChannels =
        source.getNumChannels() == 2 && hasEqualSides (source) ? 1 : source.getNumChannels();
    Samples result (numChannels, numSamples);
    std::array<std::span<const float>, 2> cycles;
    std::array<std::span<float>, 2> destinations;

    for (auto channel = 0; channel < numChannels; ++channel)
    {
        const auto index = static_cast<std::size_t> (channel);
        cycles[index] = channelOf (source, channel);
        destinations[index] = { result.getWritePointer (channel), static_cast<std::size_t> (numSamples) };
    }

    const auto count = static_cast<std::size_t> (numChannels);
    Singleton::get<PeriodicSinc>().resample (std::span (cycles).first (count),
                                             std::span (destinations).first (count));
    return result;
}
} // namespace

ResampledInternalBuffer::ResampledInternalBuffer (Source::Reader& reader, double rate, int block)
{
    const auto numFrames = reader.getNumFrames();

    if (numFrames < minSourceFrames || numFrames > maxSourceFrames)
        return;

    reader.setRateAndBlock (rate, block);
    const auto source = readAll (reader);

    if (source.getNumChannels() == 0)
        return;

    const auto length = static_cast<double> (numFrames) * reader.getRate() / reader.getFileRate();
    buffer = resampled (source,
                        juce::roundToInt (juce::jlimit (double (minSamples), double (maxSamples), length)));
}
} // namespace Zn::Audio::Sampler
