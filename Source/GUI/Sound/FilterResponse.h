#pragma once

#include "Synth/Kernels/StateVariableFilter.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace Zn::GUI
{
/** A logarithmic axis of frequencies; places on it are proportions. */
struct FrequencyAxis
{
    double lowestHz = 20.0, highestHz = 20000.0;

    double frequencyAt (double place) const noexcept
    {
        return lowestHz * std::pow (highestHz / lowestHz, place);
    }

    double placeOf (double hertz) const noexcept
    {
        return std::log (std::max (hertz, 1.0) / lowestHz) / std::log (highestHz / lowestHz);
    }
};

/** What the low-pass of a voice, both of its stages, does to a sine, in decibels. From half the sample rate up
    there is silence.
*/
double
filterDecibels (const Audio::Kernels::FilterCoefficients&, double frequencyHz, double sampleRate) noexcept;

/** The same along an axis, from its first to its last place. */
void fillFilterDecibels (const Audio::Kernels::FilterCoefficients&,
                         const FrequencyAxis& axis,
                         double sampleRate,
                         std::span<float> decibels) noexcept;

/** The gain at the cutoff itself, which the resonance alone decides, and the way back. */
double decibelsOfResonance (double q) noexcept;
double resonanceOfDecibels (double decibels) noexcept;
} // namespace Zn::GUI
