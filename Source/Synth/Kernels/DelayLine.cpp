#include "Synth/Kernels/DelayLine.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Zn::Audio::Kernels
{
namespace
{
/** Where the frames of a delay lie, and how much of the later of them is heard. */
void setDelay (DelayState& state, double samples, size_t lineSize) noexcept
{
    if (! (samples >= 0.0))
        return;

    const auto limited = std::min (samples, static_cast<double> (lineSize - 2));
    state.wholeSamples = static_cast<int> (limited);
    state.fraction = static_cast<float> (limited - state.wholeSamples);
}

float between (float first, float second, float fraction) noexcept
{
    return first + (second - first) * fraction;
}

/** A run with one delay time and one feedback gain. */
template <FilterType Type>
void processRun (std::span<float> left,
                 std::span<float> right,
                 const FilterCoefficients& coefficients,
                 float feedbackGain,
                 DelayState& state,
                 std::span<Stereo> line) noexcept
{
    const auto size = line.size();
    auto position = static_cast<size_t> (state.position);
    auto feedback = state.feedback;
    auto [leftFilter, rightFilter] = state.filters;

    for (size_t i = 0; i < left.size(); ++i)
    {
        line[position] = {
            filterSample<Type> (left[i] + feedback.left, coefficients, leftFilter) + feedback.left,
            filterSample<Type> (right[i] + feedback.right, coefficients, rightFilter) + feedback.right
        };

        auto first = position + static_cast<size_t> (state.wholeSamples);
        first -= first >= size ? size : 0;
        const auto second = first + 1 == size ? 0 : first + 1;

        left[i] = between (line[first].left, line[second].left, state.fraction);
        right[i] = between (line[first].right, line[second].right, state.fraction);
        feedback = { left[i] * feedbackGain, right[i] * feedbackGain };
        position = (position == 0 ? size : position) - 1;
    }

    state.position = static_cast<int> (position);
    state.feedback = feedback;
    state.filters = { leftFilter, rightFilter };
}

template <FilterType Type>
void processRuns (std::span<float> left,
                  std::span<float> right,
                  const FilterCoefficients& coefficients,
                  DelayState& state,
                  std::span<Stereo> line) noexcept
{
    while (! left.empty())
    {
        const auto isRamping = state.delaySamples.isRamping() || state.feedbackGain.isRamping();
        const auto length = isRamping ? 1 : left.size();
        const auto gain = state.feedbackGain.next();
        setDelay (state, state.delaySamples.next(), line.size());

        processRun<Type> (left.first (length), right.first (length), coefficients, gain, state, line);
        left = left.subspan (length);
        right = right.subspan (length);
    }
}
} // namespace

void clearDelay (DelayState& state) noexcept
{
    state.position = 0;
    state.feedback = {};
    state.filters = {};
}

void processDelay (std::span<float> left,
                   std::span<float> right,
                   const FilterCoefficients& coefficients,
                   FilterType type,
                   DelayState& state,
                   std::span<Stereo> line) noexcept
{
    switch (type)
    {
    case FilterType::lowPass:
        processRuns<FilterType::lowPass> (left, right, coefficients, state, line);
        break;

    case FilterType::bandPass:
        processRuns<FilterType::bandPass> (left, right, coefficients, state, line);
        break;

    case FilterType::highPass:
        processRuns<FilterType::highPass> (left, right, coefficients, state, line);
        break;
    }
}
} // namespace Zn::Audio::Kernels
