#include "Synth/Filters/FeedbackDelay.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zn::Audio::Filters
{
namespace
{
constexpr double timeRampSeconds = 0.1, feedbackRampSeconds = 0.02;

std::span<float> channelOf (juce::AudioBuffer<float>& buffer, int channel) noexcept
{
    return { buffer.getWritePointer (channel), static_cast<std::size_t> (buffer.getNumSamples()) };
}

template <typename Value>
void aim (Kernels::Ramp<Value>& ramp, Value target, bool atOnce) noexcept
{
    if (atOnce)
        ramp.jumpTo (target);
    else
        ramp.setTarget (target);
}
} // namespace

void FeedbackDelay::prepare (double newSampleRate)
{
    jassert (newSampleRate > 0.0);
    sampleRate = newSampleRate;

    line.assign (static_cast<std::size_t> (std::ceil (longestSeconds * sampleRate)) + 2, {});
    state.delaySamples.reset (sampleRate, timeRampSeconds);
    state.feedbackGain.reset (sampleRate, feedbackRampSeconds);
    reset();
}

void FeedbackDelay::reset() noexcept
{
    Kernels::clearDelay (state); // the line itself is cleared as it is read
    numFramesKnown = 0;
    standsAtTargets = false;
}

void FeedbackDelay::setTargets (double delaySeconds, float feedback) noexcept
{
    if (std::isfinite (delaySeconds))
        aim (state.delaySamples, std::max (0.0, delaySeconds) * sampleRate, ! standsAtTargets);

    if (std::isfinite (feedback))
        aim (state.feedbackGain, std::clamp (feedback, 0.0f, maxFeedback), ! standsAtTargets);

    standsAtTargets = true;
}

void FeedbackDelay::processLine (juce::AudioBuffer<float>& buffer,
                                 const Kernels::FilterCoefficients& coefficients,
                                 Kernels::FilterType type) noexcept
{
    const auto numSamples = buffer.getNumSamples();

    if (buffer.getNumChannels() < 2 || line.empty() || numSamples == 0)
        return;

    clearStaleFrames (numSamples);
    Kernels::processDelay (channelOf (buffer, 0),
                           channelOf (buffer, 1),
                           coefficients,
                           type,
                           state,
                           std::span (line));
    numFramesKnown = std::min (numFramesKnown + numSamples, static_cast<int> (line.size()));
}

void FeedbackDelay::clearStaleFrames (int numSamples) noexcept
{
    const auto& glide = state.delaySamples;
    const auto size = static_cast<int> (line.size());
    auto later = glide;
    later.skip (numSamples);

    const auto [nearest, farthest] = std::minmax (glide.current, later.current);
    const auto limited = [size] (double delay) {
        return static_cast<int> (std::min (delay, double (size - 2)));
    };

    // Steps that are rounded may lead a glide past its target before it stands there.
    const auto overshoot = glide.isRamping() ? limited (std::max (glide.current, glide.target) * glide.length
                                                        * std::numeric_limits<double>::epsilon())
                                                   + 1
                                             : 0;

    // Seen from where this block begins, it reads from `first` up to and with `last`.
    const auto first = limited (nearest) - overshoot - numSamples;
    const auto last = std::min (limited (farthest) + overshoot + 1, size - 1);

    for (auto ahead = std::max (first, numFramesKnown + 1); ahead <= last; ++ahead)
        line[static_cast<std::size_t> ((state.position + ahead) % size)] = {};
}
} // namespace Zn::Audio::Filters
