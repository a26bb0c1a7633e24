#pragma once

// Vectors of the width that the including file is compiled for: eight lanes with AVX2, else four. Everything has
// internal linkage, as each object file needs its own. Eight lanes are two groups of four that shuffles never cross.

#include <cstdint>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace Zn::Audio::Kernels
{
namespace
{
#if defined(__AVX2__)
constexpr int numLanes = 8;
#define ZN_LANES(four, eight) eight
#else
constexpr int numLanes = 4;
#define ZN_LANES(four, eight) four
#endif

constexpr int numPairs = numLanes / 2;

using Quad = float __attribute__ ((vector_size (16)));
using Floats = float __attribute__ ((vector_size (4 * numLanes)));
using Signed = std::int32_t __attribute__ ((vector_size (4 * numLanes)));
using Words = std::uint32_t __attribute__ ((vector_size (4 * numLanes)));
using Longs = std::uint64_t __attribute__ ((vector_size (4 * numLanes)));

inline Floats load (const float* source) noexcept
{
    Floats lanes;
    __builtin_memcpy (&lanes, source, sizeof (lanes));
    return lanes;
}

inline void store (float* destination, Floats lanes) noexcept
{
    __builtin_memcpy (destination, &lanes, sizeof (lanes));
}

inline Quad loadQuad (const float* source) noexcept
{
    using Anywhere = float __attribute__ ((vector_size (16), aligned (4), may_alias));
    return *reinterpret_cast<const Anywhere*> (source);
}

/** Four floats from each place; four lanes have room for the first place alone. */
inline Floats loadQuads (const float* first, [[maybe_unused]] const float* second) noexcept
{
#if defined(__AVX2__)
    return reinterpret_cast<Floats> (
        _mm256_insertf128_ps (_mm256_castps128_ps256 (_mm_loadu_ps (first)), _mm_loadu_ps (second), 1));
#else
    return loadQuad (first);
#endif
}

inline void storeQuads (float* first, [[maybe_unused]] float* second, Floats lanes) noexcept
{
#if defined(__AVX2__)
    const auto low = __builtin_shufflevector (lanes, lanes, 0, 1, 2, 3);
    const auto high = __builtin_shufflevector (lanes, lanes, 4, 5, 6, 7);
    __builtin_memcpy (first, &low, sizeof (low));
    __builtin_memcpy (second, &high, sizeof (high));
#else
    store (first, lanes);
#endif
}

#if defined(__AVX2__)
#define ZN_SHUFFLE(a, b, w, x, y, z)                                                                         \
    __builtin_shufflevector (a,                                                                              \
                             b,                                                                              \
                             ZN_IN_EIGHT (w),                                                                \
                             ZN_IN_EIGHT (x),                                                                \
                             ZN_IN_EIGHT (y),                                                                \
                             ZN_IN_EIGHT (z),                                                                \
                             ZN_IN_EIGHT (w) + 4,                                                            \
                             ZN_IN_EIGHT (x) + 4,                                                            \
                             ZN_IN_EIGHT (y) + 4,                                                            \
                             ZN_IN_EIGHT (z) + 4)
#define ZN_IN_EIGHT(lane) ((lane) < 4 ? (lane) : (lane) + 4)
#else
#define ZN_SHUFFLE(a, b, w, x, y, z) __builtin_shufflevector (a, b, w, x, y, z)
#endif

// In each group of four lanes, numbered 0 to 3 in the first vector and 4 to 7 in the second.
template <typename Lanes>
inline Lanes evenLanes (Lanes a, Lanes b) noexcept
{
    return ZN_SHUFFLE (a, b, 0, 2, 4, 6);
}

template <typename Lanes>
inline Lanes oddLanes (Lanes a, Lanes b) noexcept
{
    return ZN_SHUFFLE (a, b, 1, 3, 5, 7);
}

inline Floats lowLanes (Floats a, Floats b) noexcept
{
    return ZN_SHUFFLE (a, b, 0, 4, 1, 5);
}
inline Floats highLanes (Floats a, Floats b) noexcept
{
    return ZN_SHUFFLE (a, b, 2, 6, 3, 7);
}
inline Floats lowPairs (Floats a, Floats b) noexcept
{
    return ZN_SHUFFLE (a, b, 0, 1, 4, 5);
}
inline Floats highPairs (Floats a, Floats b) noexcept
{
    return ZN_SHUFFLE (a, b, 2, 3, 6, 7);
}

#undef ZN_SHUFFLE
#undef ZN_IN_EIGHT

inline Floats splat (float value) noexcept
{
    return Floats {} + value;
}

/** Left and right over and over, as frames lie. */
inline Floats splatPair (float left, float right) noexcept
{
    return lowLanes (splat (left), splat (right));
}

/** Frames of both sides in two vectors. */
struct Sound
{
    Floats firstHalf, secondHalf;
};

/** The lower half of each number times a number below 2 to the 32. */
inline Longs timesLowHalf (Longs a, Longs b) noexcept
{
#if defined(__AVX2__)
    return reinterpret_cast<Longs> (
        _mm256_mul_epu32 (reinterpret_cast<__m256i> (a), reinterpret_cast<__m256i> (b)));
#elif defined(__SSE2__)
    return reinterpret_cast<Longs> (
        _mm_mul_epu32 (reinterpret_cast<__m128i> (a), reinterpret_cast<__m128i> (b)));
#else
    return (a & 0xffffffffu) * b;
#endif
}
} // namespace
} // namespace Zn::Audio::Kernels
