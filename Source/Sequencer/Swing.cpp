#include "Sequencer/Swing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Zn::Sequencer
{
namespace
{
constexpr auto neutralSkew = 1.0;

double centreFromNormalised (double amount) noexcept
{
    constexpr auto smallest = 0.001;
    constexpr auto outerZone = 0.2; // as wide at both ends

    const auto limited = std::clamp (amount, smallest, 1.0 - smallest);

    // Moving at half speed from the zone's edge on, the curve stays continuous there.
    if (limited > 1.0 - outerZone)
        return limited * 0.5 + (1.0 - outerZone) * 0.5;

    return limited < outerZone ? limited * 0.5 + outerZone * 0.5 : limited;
}

double cycleFromReference (int index) noexcept
{
    constexpr std::array cycles { 0.5, 1.0, 2.0 }; // quarter notes of 1/8, 1/4, 1/2

    return index >= 0 && index < static_cast<int> (cycles.size()) ? cycles[static_cast<std::size_t> (index)]
                                                                  : 1.0;
}
} // namespace

SwingSettings SwingSettings::from (double normalisedAmount, int referenceIndex) noexcept
{
    return { centreFromNormalised (normalisedAmount), cycleFromReference (referenceIndex) };
}

SwingWarp::SwingWarp (SwingSettings settings) noexcept
    : cycle (settings.cycle), skew (std::log (0.5) / std::log (settings.centre))
{
    jassert (settings.cycle > 0.0 && settings.centre > 0.0 && settings.centre < 1.0);
}

double SwingWarp::moved (double time) const noexcept
{
    auto sinceBase = std::fmod (time, cycle);

    if (sinceBase < 0.0) // cycles are counted downwards ahead of time 0 too
        sinceBase += cycle;

    const auto base = time - sinceBase;
    const auto place = std::clamp (sinceBase / cycle, 0.0, 1.0);

    return base + cycle * (place > 0.0 ? std::exp (std::log (place) / skew) : 0.0);
}

Ranges::Span SwingWarp::moved (Ranges::Span span) const noexcept
{
    // Not left to rounding: without swing every event is exactly where it was.
    if (skew == neutralSkew)
        return { span.start, std::max (span.length, 0.0) };

    const auto start = moved (span.start);

    return { start, std::max (moved (span.start + span.length) - start, 0.0) };
}
} // namespace Zn::Sequencer
