#include "Spectrum.h"

#include <bit>
#include <cassert>
#include <cmath>
#include <numbers>

namespace Zn::Measure
{
namespace
{
/** Of a power of two: halves it into even and odd samples, which are transformed by themselves. */
void transform (std::span<std::complex<double>> values, std::span<std::complex<double>> scratch)
{
    const auto half = values.size() / 2;

    if (half == 0)
        return;

    for (size_t i = 0; i < half; ++i)
    {
        scratch[i] = values[2 * i];
        scratch[half + i] = values[2 * i + 1];
    }

    const auto even = scratch.first (half), odd = scratch.subspan (half);
    transform (even, values.first (half));
    transform (odd, values.subspan (half));

    for (size_t i = 0; i < half; ++i)
    {
        const auto turned = std::polar (1.0, -std::numbers::pi * double (i) / double (half)) * odd[i];
        values[i] = even[i] + turned;
        values[half + i] = even[i] - turned;
    }
}
} // namespace

Spectrum spectrumOf (std::span<const float> samples)
{
    assert (std::has_single_bit (samples.size()));
    Spectrum values (samples.begin(), samples.end()), scratch (samples.size());
    transform (values, scratch);
    values.resize (samples.size() / 2 + 1);
    return values;
}

size_t binOf (double frequencyHz, size_t numSamples) noexcept
{
    return static_cast<size_t> (std::lround (frequencyHz * double (numSamples) / rate));
}
} // namespace Zn::Measure
