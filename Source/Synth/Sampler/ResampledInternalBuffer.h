#pragma once

#include "Synth/Sampler/SourceReader.h"

namespace Zn::Audio::Sampler
{
/** A whole source in memory, taken as one cycle and resampled.

    At a rate r it has frames x r / file rate samples, within 2 and 262144, of which the last equals the first: the
    cycle is closed, so that a reader never has to wrap. Of more than two channels the first two are taken, and two
    that are alike become one. Thread: any but audio.
*/
class ResampledInternalBuffer
{
public:
    static constexpr int minSourceFrames = 2, maxSourceFrames = 65536;
    static constexpr int minSamples = 2, maxSamples = 262144;

    ResampledInternalBuffer (Source::Reader& reader, double rate, int block);

    /** Without channels when the source is too short, too long or not readable. */
    const juce::AudioBuffer<float>& getBuffer() const noexcept { return buffer; }

private:
    juce::AudioBuffer<float> buffer;
};
} // namespace Zn::Audio::Sampler
