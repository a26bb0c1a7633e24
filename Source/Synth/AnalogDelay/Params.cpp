#include "Synth/AnalogDelay/Params.h"

#include "Synth/Filters/FeedbackDelay.h"

#include <algorithm>
#include <cmath>

namespace Zn::Audio::AnalogDelay
{
namespace
{
constexpr int syncMode = 0;
constexpr double lowestTempo = 1.0, defaultTempo = 100.0; // quarters a minute
constexpr double silentGain = 0.001;
constexpr double highestFilterGain = 1.155; // of the tone filter, where it is resonant
} // namespace

double Params::delaySeconds (double tempo) const noexcept
{
    if (mode.get() != syncMode)
        return double (time.get());

    const auto isUsable = std::isfinite (tempo) && tempo >= lowestTempo;
    return TimeMap::quartersOf (timeSync.get()) * 60.0 / (isUsable ? tempo : defaultTempo);
}

double Params::tailSeconds (double tempo) const noexcept
{
    if (mix.get() <= 0.0f)
        return 0.0;

    const auto gain = double (feedback.get()) * highestFilterGain;
    const auto numRepeats = gain > silentGain ? std::ceil (std::log (silentGain) / std::log (gain)) : 0.0;
    return (1.0 + numRepeats) * std::min (delaySeconds (tempo), Filters::FeedbackDelay::longestSeconds);
}
} // namespace Zn::Audio::AnalogDelay
