#include "Synth/AnalogDelay/DelayFilter.h"

#include "Synth/AnalogDelay/Params.h"

#include <algorithm>
#include <cmath>

namespace Zn::Audio::AnalogDelay
{
namespace
{
constexpr float lowestCutoff = 100.0f, highestCutoff = 20000.0f; // hertz
constexpr float skew = 0.2238789f;                               // puts 1000 Hz in the middle
constexpr double q = 1.0;
} // namespace

float toneCutoffHz (float analog) noexcept
{
    const auto brightness = analog > 0.0f ? std::max (0.0f, 1.0f - analog) : 1.0f;
    return lowestCutoff + (highestCutoff - lowestCutoff) * std::pow (brightness, 1.0f / skew);
}

void DelayFilter::prepare (double newSampleRate) noexcept
{
    sampleRate = newSampleRate;
    update();
}

void DelayFilter::setAnalog (float newAnalog) noexcept
{
    if (analog == newAnalog)
        return;

    analog = newAnalog;
    update();
}

void DelayFilter::update() noexcept
{
    coefficients = Kernels::makeFilterCoefficients (double (toneCutoffHz (analog)), q, sampleRate);
}

void follow (Delay& delay, const Params& params, double tempo) noexcept
{
    delay.filter.setAnalog (params.analog.get());
    delay.setTargets (params.delaySeconds (tempo), params.feedback.get());
}
} // namespace Zn::Audio::AnalogDelay
