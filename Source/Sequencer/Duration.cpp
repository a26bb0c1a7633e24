#include "Sequencer/Duration.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace Zn::Sequencer
{
namespace
{
std::optional<double> bareNumber (const Reflector& owner)
{
    const auto value = owner.getValue ("duration");

    if (const auto* integer = std::get_if<std::int64_t> (&value))
        return static_cast<double> (*integer);

    if (const auto* fraction = std::get_if<double> (&value))
        return *fraction;

    return {};
}
} // namespace

double Duration::value() const noexcept
{
    if (mode == 0)
        return time.length();

    return std::isfinite (duration) ? std::clamp (duration, 0.0, longestTime) : 0.0;
}

void Duration::setQuarters (double quarters) noexcept
{
    duration = quarters;
    mode = 1;
}

void Duration::reflectIn (Reflector& owner)
{
    if (owner.isLoading())
    {
        if (const auto quarters = bareNumber (owner); quarters && *quarters >= 0.0)
        {
            setQuarters (*quarters);
            return;
        }
    }

    owner.addChild ("Duration", *this);
}

void Duration::reflect (Reflector& r)
{
    r.addChild ("Time", time);
    r.add ("duration", duration);

    try
    {
        r.add ("mode", mode);
    }
    catch (const std::logic_error&) // text that is no number, or one out of range
    {}
}
} // namespace Zn::Sequencer
