#include "Synth/AnalogDelay/Params.h"

#include <cmath>

namespace Zn::Audio::AnalogDelay
{
namespace
{
constexpr int syncMode = 0;
constexpr double lowestTempo = 1.0, defaultTempo = 100.0; // quarters a minute
} // namespace

double Params::delaySeconds (double tempo) const noexcept
{
    if (mode.get() != syncMode)
        return double (time.get());

    const auto isUsable = std::isfinite (tempo) && tempo >= lowestTempo;
    return TimeMap::quartersOf (timeSync.get()) * 60.0 / (isUsable ? tempo : defaultTempo);
}
} // namespace Zn::Audio::AnalogDelay
