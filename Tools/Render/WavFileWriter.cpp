#include "WavFileWriter.h"

#include <algorithm>
#include <cmath>

namespace Zn::Render
{
namespace
{
constexpr int floatBits = 32;

std::unique_ptr<juce::AudioFormatWriter>
makeWriter (Tools::OutputFile& file, double sampleRate, int channels, int bits)
{
    auto stream = file.createStream();
    std::unique_ptr<juce::AudioFormatWriter> writer (
        juce::WavAudioFormat()
            .createWriterFor (stream.get(), sampleRate, static_cast<unsigned int> (channels), bits, {}, 0));

    if (writer == nullptr)
        file.fail ("cannot be written as WAV in this format");

    stream.release(); // now the writer's
    return writer;
}
} // namespace

WavFileWriter::WavFileWriter (const juce::File& target, double sampleRate, int numChannels, int bitsToUse)
    : file (target)
    , bits (bitsToUse)
    , writer (makeWriter (file, sampleRate, numChannels, bits))
    , converted (static_cast<std::size_t> (numChannels))
    , channels (static_cast<std::size_t> (numChannels))
{}

void WavFileWriter::write (const RenderedBlock& block)
{
    if (bits == floatBits)
    {
        writer->writeFromAudioSampleBuffer (block.audio, 0, block.audio.getNumSamples());
    }
    else
    {
        convert (block.audio);
        writer->write (channels.data(), block.audio.getNumSamples());
    }

    file.throwIfFailed();
}

void WavFileWriter::finish()
{
    writer.reset(); // completes the header
    file.finish();
}

void WavFileWriter::convert (const juce::AudioBuffer<float>& audio)
{
    const auto scale = std::exp2 (bits - 1);
    const auto shift = floatBits - bits;

    for (std::size_t channel = 0; channel < channels.size(); ++channel)
    {
        const auto* samples = audio.getReadPointer (static_cast<int> (channel));
        auto& values = converted[channel];
        values.resize (static_cast<std::size_t> (audio.getNumSamples()));

        for (std::size_t i = 0; i < values.size(); ++i)
        {
            const auto wanted = std::round (static_cast<double> (samples[i]) * scale);
            const auto value = std::clamp (wanted, -scale, scale - 1.0);
            clipped += value != wanted ? 1 : 0;
            values[i] = static_cast<int> (value) * (1 << shift);
        }

        channels[channel] = values.data();
    }
}
} // namespace Zn::Render
