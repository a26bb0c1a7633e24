#pragma once

#include "Synth/Kernels/DelayLine.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <vector>

/** Filters and delays over the kernels, ready to be put into a processor. */
namespace Zn::Audio::Filters
{
/** The line of a stereo echo, and where its time and feedback are going. Both glide to their targets, but stand there
    at once in the first block after prepare or reset. Thread: audio.
*/
class FeedbackDelay
{
public:
    static constexpr double longestSeconds = 4.0; // longer times are limited to it
    static constexpr float maxFeedback =
        0.4f; // gain; more could make the loop grow with the filter beside it

    FeedbackDelay() = default;

    FeedbackDelay (const FeedbackDelay&) = delete;
    FeedbackDelay& operator= (const FeedbackDelay&) = delete;

    /** Sizes the line, and forgets all sound. The rate is in hertz, above 0. Thread: prepare. */
    void prepare (double newSampleRate);

    /** Forgets all sound. Takes no time, however long the line is. */
    void reset() noexcept;

    /** Where time and feedback go from now on. What is not a number leaves its target as it is. */
    void setTargets (double delaySeconds, float feedback) noexcept;

protected:
    ~FeedbackDelay() = default;

    double getSampleRate() const noexcept { return sampleRate; }

    /** Replaces the first two channels by their echoes; leaves a buffer alone that has fewer. */
    void processLine (juce::AudioBuffer<float>& buffer,
                      const Kernels::FilterCoefficients& coefficients,
                      Kernels::FilterType type) noexcept;

private:
    void clearStaleFrames (int numSamples) noexcept;

    double sampleRate = 0.0; // hertz; 0 before prepare
    std::vector<Kernels::Stereo> line;
    Kernels::DelayState state;
    int numFramesKnown = 0; // written since the last reset; what lies further ahead is of an older time
    bool standsAtTargets = false;
};
} // namespace Zn::Audio::Filters
