#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Render
{
/** What the processor made of one block. */
struct RenderedBlock
{
    juce::int64 firstSample = 0; // since the start of the render
    const juce::AudioBuffer<float>& audio;
    const juce::MidiBuffer& midi;

    juce::int64 endSample() const noexcept { return firstSample + audio.getNumSamples(); }
};

/** Takes the blocks of a render in order, and writes them to a file as they come. Throws FileError. */
class OutputWriter
{
public:
    virtual ~OutputWriter() = default;

    virtual void write (const RenderedBlock&) = 0;

    /** Completes the file; without it, nothing is left behind. */
    virtual void finish() = 0;
};
} // namespace Zn::Render
