#pragma once

#include "Synth/Kernels/Stereo.h"

#include <array>
#include <span>

namespace Zn::Audio::Kernels
{
enum class FilterType
{
    lowPass,
    bandPass,
    highPass
};

/** The topology-preserving state-variable filter: two integrators in a loop without delay. */
struct FilterCoefficients
{
    float g = 0.0f;  // gain of an integrator
    float r2 = 1.0f; // damping, 1 / Q
    float h = 1.0f;  // resolves the loop, 1 / (1 + g (g + r2))
};

/** The cutoff is kept within 10 Hz and 49 % of the sample rate, above which the filter would explode, and Q above a
    hundredth; what is not a number counts as the lowest.
*/
FilterCoefficients makeFilterCoefficients (double cutoffHz, double q, double sampleRate) noexcept;

/** What the two integrators of one stage hold for one channel. */
struct FilterState
{
    float s1 = 0.0f, s2 = 0.0f;
};

/** One sample through one stage: the definition that all faster forms are measured by. */
template <FilterType Type>
inline float filterSample (float sample, const FilterCoefficients& c, FilterState& state) noexcept
{
    const auto high = c.h * (sample - (c.g + c.r2) * state.s1 - state.s2);
    const auto band = state.s1 + c.g * high;
    const auto low = state.s2 + c.g * band;
    state = { band + c.g * high, low + c.g * band };

    if constexpr (Type == FilterType::highPass)
        return high;
    else if constexpr (Type == FilterType::bandPass)
        return band;
    else
        return low;
}

/** Filters one channel in place, through as many stages as there are states. Thread: audio. */
void filterChannel (std::span<float> samples,
                    const FilterCoefficients&,
                    FilterType,
                    std::span<FilterState> stages) noexcept;

/** The memory of a voice's filter, both channels of each stage side by side. */
struct StereoFilterState
{
    static constexpr int maxStages = 2;

    struct Stage
    {
        Stereo s1, s2;
    };

    std::array<Stage, maxStages> stages {};
};

/** One of the voices that VoiceKernels::filterVoices takes side by side; each has coefficients of its own. */
struct FilteredVoice
{
    std::span<Stereo> frames; // in place; all voices of a call have the same number
    FilterCoefficients coefficients;
    StereoFilterState* state = nullptr;
};
} // namespace Zn::Audio::Kernels
