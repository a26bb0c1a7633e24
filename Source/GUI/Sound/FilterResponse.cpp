#include "GUI/Sound/FilterResponse.h"

#include <numbers>

namespace Zn::GUI
{
namespace
{
constexpr double numStages = 2.0;  // of a voice's filter
constexpr double silence = -200.0; // decibels
constexpr double perDecade = 20.0; // decibels of a gain of ten
} // namespace

double
filterDecibels (const Audio::Kernels::FilterCoefficients& c, double frequencyHz, double sampleRate) noexcept
{
    if (frequencyHz >= sampleRate / 2.0)
        return silence;

    // The integrators are trapezoidal: the analogue filter with its frequencies bent by the tangent.
    const auto w = std::tan (std::numbers::pi * frequencyHz / sampleRate) / double (c.g);
    const auto gain = 1.0 / std::hypot (1.0 - w * w, w * double (c.r2));
    return std::max (silence, numStages * perDecade * std::log10 (gain));
}

void fillFilterDecibels (const Audio::Kernels::FilterCoefficients& c,
                         const FrequencyAxis& axis,
                         double sampleRate,
                         std::span<float> decibels) noexcept
{
    for (std::size_t i = 0; i < decibels.size(); ++i)
    {
        const auto place = double (i) / double (std::max (decibels.size() - 1, std::size_t { 1 }));
        decibels[i] = static_cast<float> (filterDecibels (c, axis.frequencyAt (place), sampleRate));
    }
}

double decibelsOfResonance (double q) noexcept
{
    return numStages * perDecade * std::log10 (q);
}

double resonanceOfDecibels (double decibels) noexcept
{
    return std::pow (10.0, decibels / (numStages * perDecade));
}
} // namespace Zn::GUI
