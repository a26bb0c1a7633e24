#pragma once

#include <complex>
#include <span>
#include <vector>

namespace Zn::Measure
{
/** Everything here is measured at this rate. */
constexpr double rate = 48000.0; // hertz

using Spectrum = std::vector<std::complex<double>>;

/** The discrete Fourier transform up to and with half the rate, not scaled. The number of samples is a power of two. */
Spectrum spectrumOf (std::span<const float> samples);

/** The bin of a spectrum of so many samples that lies nearest to a frequency. */
size_t binOf (double frequencyHz, size_t numSamples) noexcept;
} // namespace Zn::Measure
