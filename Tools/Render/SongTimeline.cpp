#include "SongTimeline.h"

#include <algorithm>
#include <cmath>

namespace Zn::Render
{
namespace
{
// A position that falls on a sample must not miss it by the last digit of a sum.
constexpr double roundingSamples = 1.0e-5;
} // namespace

SongTimeline::SongTimeline (
    TempoMap tempoMap, MeterMap meterMap, double length, double rate, std::optional<Loop> loopToUse)
    : tempi (std::move (tempoMap))
    , meters (std::move (meterMap))
    , lengthQuarters (length)
    , sampleRate (rate)
    , loop (loopToUse)
{
    if (loop)
    {
        loopStartSeconds = tempi.secondsFromQuarters (loop->startQuarters);
        loopEndSeconds = tempi.secondsFromQuarters (loop->endQuarters);
    }
}

SongPoint SongTimeline::pointAt (std::int64_t sample) const noexcept
{
    SongPoint point;
    const auto elapsed = static_cast<double> (sample) / sampleRate;
    const auto overrun = elapsed + roundingSamples / sampleRate - loopEndSeconds;

    if (loop && overrun >= 0.0)
        point.pass = 1 + static_cast<std::int64_t> (overrun / (loopEndSeconds - loopStartSeconds));

    point.seconds = elapsed - secondsBefore (point.pass);
    point.quarters = tempi.quartersFromSeconds (point.seconds);

    if (point.pass > 0)
        point.quarters = std::max (point.quarters, loop->startQuarters);

    point.elapsedQuarters = elapsedQuartersAt (point.pass, point.quarters);
    return point;
}

std::int64_t SongTimeline::sampleAt (std::int64_t pass, double quarters) const noexcept
{
    return sampleFromSeconds (secondsBefore (pass) + tempi.secondsFromQuarters (quarters));
}

double SongTimeline::elapsedQuartersAt (std::int64_t pass, double quarters) const noexcept
{
    return loop ? quarters + static_cast<double> (pass) * (loop->endQuarters - loop->startQuarters)
                : quarters;
}

std::int64_t SongTimeline::getLengthSamples() const noexcept
{
    return sampleFromSeconds (tempi.secondsFromQuarters (lengthQuarters));
}

std::int64_t SongTimeline::sampleFromSeconds (double seconds) const noexcept
{
    return static_cast<std::int64_t> (std::floor (seconds * sampleRate + roundingSamples));
}

double SongTimeline::secondsBefore (std::int64_t pass) const noexcept
{
    return static_cast<double> (pass) * (loopEndSeconds - loopStartSeconds);
}
} // namespace Zn::Render
