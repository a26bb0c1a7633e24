#pragma once

namespace Zn
{
/** A width and a height. */
template <typename T>
struct Dimensions
{
    T width {}, height {};

    constexpr bool operator== (const Dimensions&) const = default;
};
} // namespace Zn
