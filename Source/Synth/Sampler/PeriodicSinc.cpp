#include "Synth/Sampler/PeriodicSinc.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <numbers>
#include <numeric>

namespace Zn::Audio::Sampler
{
namespace
{
constexpr double kaiserBeta = 10.06; // 100 dB of attenuation

/** The modified Bessel function of order 0, by its series: exact to double precision for what a window needs. */
double bessel0 (double x)
{
    const auto quarterSquare = x * x * 0.25;
    auto term = 1.0, sum = 1.0;

    for (auto k = 1.0; term > sum * 1e-17; k += 1.0)
    {
        term *= quarterSquare / (k * k);
        sum += term;
    }

    return sum;
}

double kaiser (double position) // -1 to 1
{
    return bessel0 (kaiserBeta * std::sqrt (std::max (0.0, 1.0 - position * position)));
}

double sinc (double x)
{
    const auto angle = std::numbers::pi * x;
    return std::abs (x) < 1e-9 ? 1.0 : std::sin (angle) / angle;
}

/** The cycle and enough of its neighbours that no place in it runs out of taps. */
std::vector<float> withNeighbours (std::span<const float> cycle, std::size_t numAhead, std::size_t numBehind)
{
    const auto length = cycle.size();
    std::vector<float> padded (numAhead + length + numBehind);
    auto from = (length - numAhead % length) % length;

    for (auto& sample : padded)
    {
        sample = cycle[from];
        from = from + 1 == length ? 0 : from + 1;
    }

    return padded;
}

/** Four numbers that are worked on at once, with the same result on every machine. */
constexpr std::size_t numLanes = 4;
using Lanes = float __attribute__ ((vector_size (numLanes * sizeof (float))));

Lanes load (const float* from) noexcept
{
    Lanes lanes;
    std::memcpy (&lanes, from, sizeof (lanes));
    return lanes;
}

float sumOf (const Lanes& lanes) noexcept
{
    return (lanes[0] + lanes[2]) + (lanes[1] + lanes[3]);
}

/** Steps through numerator / denominator, without ever rounding. */
struct ExactPosition
{
    std::size_t step, denominator;
    std::size_t whole = 0, remainder = 0;

    void advance() noexcept
    {
        remainder += step;

        while (remainder >= denominator)
        {
            remainder -= denominator;
            ++whole;
        }
    }
};
} // namespace

PeriodicSinc::PeriodicSinc() : weights (static_cast<std::size_t> ((numPhases + 1) * numTaps))
{
    for (auto phase = 0; phase <= numPhases; ++phase)
        makePhase (phase);
}

void PeriodicSinc::makePhase (int phase)
{
    std::array<double, numTaps> taps {};
    const auto fraction = static_cast<double> (phase) / numPhases;
    constexpr auto half = numTaps / 2;

    for (std::size_t tap = 0; tap < numTaps; ++tap)
    {
        const auto distance = static_cast<double> (tap) - (half - 1) - fraction;
        taps[tap] = sinc (distance) * kaiser (distance / half);
    }

    // A constant must come out as itself, whatever the place.
    const auto sum = std::accumulate (taps.begin(), taps.end(), 0.0);

    for (std::size_t tap = 0; tap < numTaps; ++tap)
        weights[static_cast<std::size_t> (phase) * numTaps + tap] = static_cast<float> (taps[tap] / sum);
}

void PeriodicSinc::resample (std::span<const std::span<const float>> cycles,
                             std::span<const std::span<float>> destinations) const
{
    if (cycles.size() == 1)
        resampleChannels<1> (cycles, destinations);
    else
        resampleChannels<2> (cycles, destinations);
}

template <std::size_t numChannels>
void PeriodicSinc::resampleChannels (std::span<const std::span<const float>> cycles,
                                     std::span<const std::span<float>> destinations) const
{
    std::array<std::vector<float>, numChannels> sources;

    for (std::size_t channel = 0; channel < numChannels; ++channel)
        sources[channel] = withNeighbours (cycles[channel], numTaps / 2 - 1, numTaps / 2 + 1);

    const auto numSamples = destinations[0].size();
    const auto phasesPerRemainder = static_cast<double> (numPhases) / static_cast<double> (numSamples - 1);
    ExactPosition position { cycles[0].size(), numSamples - 1 };

    for (std::size_t i = 0; i < numSamples; ++i)
    {
        const auto phase = static_cast<double> (position.remainder) * phasesPerRemainder;
        const auto wholePhase = static_cast<std::size_t> (phase);
        const auto fraction = static_cast<float> (phase - static_cast<double> (wholePhase));
        const auto* here = weights.data() + wholePhase * numTaps;
        const auto* next = here + numTaps;

        std::array<Lanes, numChannels> sums {};

        for (std::size_t tap = 0; tap < numTaps; tap += numLanes)
        {
            const auto weight = load (here + tap);
            const auto between = weight + fraction * (load (next + tap) - weight);

            for (std::size_t channel = 0; channel < numChannels; ++channel)
                sums[channel] += between * load (sources[channel].data() + position.whole + tap);
        }

        for (std::size_t channel = 0; channel < numChannels; ++channel)
            destinations[channel][i] = sumOf (sums[channel]);

        position.advance();
    }
}
} // namespace Zn::Audio::Sampler
