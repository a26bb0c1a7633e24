#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <tuple>

namespace Zn
{
/** A program version as files carry it, "major.minor.patch". Ordered by major, then minor, then patch. */
struct Version
{
    int majorNumber = 0, minorNumber = 0, patchNumber = 0;

    /** Exactly three non-negative integers joined by points; anything else gives 0.0.0. */
    static Version fromText (std::string_view text) noexcept;

    std::string toText() const;

    constexpr bool operator== (const Version&) const = default;

    // Not defaulted: Clang 14 takes the zero in what it generates for a null pointer.
    constexpr std::strong_ordering operator<=> (const Version& other) const noexcept
    {
        return std::tie (majorNumber, minorNumber, patchNumber)
               <=> std::tie (other.majorNumber, other.minorNumber, other.patchNumber);
    }
};
} // namespace Zn
