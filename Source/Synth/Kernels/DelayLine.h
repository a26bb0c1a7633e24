#pragma once

#include "Synth/Kernels/LinearRamp.h"
#include "Synth/Kernels/StateVariableFilter.h"
#include "Synth/Kernels/Stereo.h"

#include <array>
#include <span>

namespace Zn::Audio::Kernels
{
/** A stereo echo: what comes back is fed to the line twice, once through the filter and once beside it.

    The line runs backwards, so that a longer delay lies further ahead. It holds at least three frames.
*/
struct DelayState
{
    int position = 0;                      // where the next frame is written, and a delay of 0 would be read
    int wholeSamples = 0;                  // of the delay now heard
    float fraction = 0.0f;                 // of a sample
    Stereo feedback;                       // what comes back with the next frame
    std::array<FilterState, 2> filters {}; // left and right

    DelayRamp delaySamples; // a time that is negative or not a number leaves the delay where it is
    LinearRamp feedbackGain;
};

/** Forgets what comes back, but not the line, nor where the delay is going. Thread: prepare, or audio. */
void clearDelay (DelayState&) noexcept;

/** Replaces both channels, of one length, by their echoes. Thread: audio. */
void processDelay (std::span<float> left,
                   std::span<float> right,
                   const FilterCoefficients&,
                   FilterType,
                   DelayState&,
                   std::span<Stereo> line) noexcept;
} // namespace Zn::Audio::Kernels
