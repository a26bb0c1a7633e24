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

    /** Loading limits both fields to a range in which sums and products of them stay finite. */
    void reflect (Reflector& r);

    constexpr bool operator== (const Span&) const = default;
};
} // namespace Zn::Ranges
