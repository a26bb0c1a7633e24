#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace Zn
{
/** A program version as files carry it, "major.minor.patch". Ordered by major, then minor, then patch. */
struct Version
{
    int majorNumber = 0, minorNumber = 0, patchNumber = 0;

    /** Exactly three non-negative integers joined by points; anything else gives 0.0.0. */
    static Version fromText (std::string_view text) noexcept;

    std::string toText() const;

    constexpr auto operator<=> (const Version&) const = default;
};
} // namespace Zn
