#pragma once

#include "Presets/Reflection/Reflector.h"

#include <algorithm>

namespace Zn::Ranges
{
/** A place in musical time. Both fields are quarter notes, or fractions of a pattern inside a drawn one. */
struct Span
{
    double start = 0.0, length = 0.0;

    /** Just past the span's last moment; never ahead of its start. */
    constexpr double end() const noexcept { return std::max (start + length, start); }

    void reflect (Reflector& r)
    {
        r.add ("start", start);
        r.add ("length", length);
    }

    constexpr bool operator== (const Span&) const = default;
};
} // namespace Zn::Ranges
