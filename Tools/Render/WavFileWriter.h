#pragma once

#include "OutputWriter.h"
#include "Support/OutputFile.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <memory>
#include <vector>

namespace Zn::Render
{
/** Writes the audio as WAV, beyond 4 GB as RF64. Sound beyond full scale is clipped
    unless the format is float.
*/
class WavFileWriter final : public OutputWriter
{
public:
    /** 16 and 24 bits are whole numbers, rounded to the nearest; 32 bits are float. */
    WavFileWriter (const juce::File& target, double sampleRate, int channels, int bits);

    void write (const RenderedBlock&) override;
    void finish() override;

    /** Samples that were beyond full scale. */
    juce::int64 getNumClipped() const noexcept { return clipped; }

private:
    void convert (const juce::AudioBuffer<float>&);

    Tools::OutputFile file;
    int bits;
    std::unique_ptr<juce::AudioFormatWriter> writer;
    std::vector<std::vector<int>> converted; // per channel, the value in the highest bits
    std::vector<const int*> channels;        // for the writer: whole numbers, or float in disguise
    juce::int64 clipped = 0;
};
} // namespace Zn::Render
