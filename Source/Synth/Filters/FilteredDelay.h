#pragma once

#include "Synth/Filters/FeedbackDelay.h"

namespace Zn::Audio::Filters
{
/** An echo with a filter in its loop. A Filter has prepare (sampleRate), getCoefficients() and getType().
    Thread: audio.
*/
template <typename Filter>
class FilteredDelay : public FeedbackDelay
{
public:
    /** Thread: prepare. */
    void prepare (double newSampleRate)
    {
        FeedbackDelay::prepare (newSampleRate);
        filter.prepare (newSampleRate);
    }

    /** Replaces the first two channels by their echoes; leaves a buffer alone that has fewer. */
    void process (juce::AudioBuffer<float>& buffer) noexcept
    {
        processLine (buffer, filter.getCoefficients(), filter.getType());
    }

    Filter filter;
};
} // namespace Zn::Audio::Filters
