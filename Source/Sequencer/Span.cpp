#include "Sequencer/Span.h"

#include "Sequencer/Bars.h"

#include <cmath>

namespace Zn::Ranges
{
namespace
{
double limited (double time) noexcept
{
    using Sequencer::longestTime;

    return std::isfinite (time) ? std::clamp (time, -longestTime, longestTime) : 0.0;
}
} // namespace

void Span::reflect (Reflector& r)
{
    r.add ("start", start);
    r.add ("length", length);

    if (r.isLoading())
        *this = { limited (start), limited (length) };
}
} // namespace Zn::Ranges
