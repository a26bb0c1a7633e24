#include "Synth/Kernels/StateVariableFilter.h"

#include <algorithm>
#include <cmath>

namespace Zn::Audio::Kernels
{
namespace
{
/** Unlike std::clamp, gives the lowest for what is not a number. */
double within (double lowest, double value, double highest) noexcept
{
    return value > lowest ? std::min (value, highest) : lowest;
}

template <FilterType Type>
void filterStage (std::span<float> samples,
                  const FilterCoefficients& coefficients,
                  FilterState& stored) noexcept
{
    auto state = stored;

    for (auto& sample : samples)
        sample = filterSample<Type> (sample, coefficients, state);

    stored = state;
}
} // namespace

FilterCoefficients makeFilterCoefficients (double cutoffHz, double q, double sampleRate) noexcept
{
    constexpr auto lowestCutoffHz = 10.0, highestCutoffOfRate = 0.49;
    constexpr auto lowestQ = 0.01, highestQ = 100.0;
    constexpr auto pi = 3.1415927;

    const auto cutoff = within (lowestCutoffHz, cutoffHz, highestCutoffOfRate * sampleRate);
    const auto g = std::tan (cutoff * pi / sampleRate);
    const auto r2 = 1.0 / within (lowestQ, q, highestQ);

    return { static_cast<float> (g),
             static_cast<float> (r2),
             static_cast<float> (1.0 / (1.0 + g * (g + r2))) };
}

void filterChannel (std::span<float> samples,
                    const FilterCoefficients& coefficients,
                    FilterType type,
                    std::span<FilterState> stages) noexcept
{
    for (auto& stage : stages)
        switch (type)
        {
        case FilterType::lowPass:
            filterStage<FilterType::lowPass> (samples, coefficients, stage);
            break;
        case FilterType::bandPass:
            filterStage<FilterType::bandPass> (samples, coefficients, stage);
            break;
        case FilterType::highPass:
            filterStage<FilterType::highPass> (samples, coefficients, stage);
            break;
        }
}
} // namespace Zn::Audio::Kernels
