#pragma once

namespace Zn
{
/** A run of samples inside one host block. */
struct BlockSlice
{
    int start = 0, length = 0; // samples from the block's first

    constexpr int end() const noexcept { return start + length; }
    constexpr BlockSlice upTo (int sample) const noexcept { return { start, sample - start }; }
    constexpr BlockSlice from (int sample) const noexcept { return { sample, end() - sample }; }
    constexpr bool operator== (const BlockSlice&) const = default;
};

static_assert (BlockSlice { 0, 64 }.from (16).upTo (48) == BlockSlice { 16, 32 });
} // namespace Zn
