#include "Synth/Kernels/TableRead.h"

#include <cmath>
#include <cstddef>

namespace Zn::Audio::Kernels
{
float readTable (const TableView& table, int channel, double phase) noexcept
{
    constexpr auto endOfLastSample = 1.5;
    const auto stride = static_cast<std::ptrdiff_t> (table.numChannels);
    const auto* samples = table.frames + channel % table.numChannels;

    if (! (phase >= 0.0 && phase <= endOfLastSample))
        return 0.0f;

    if (phase >= 1.0)
        return samples[(table.numFrames - 1) * stride];

    const auto position = phase * (table.numFrames - 1);
    const auto index = static_cast<std::ptrdiff_t> (position);
    const auto weights = tapWeights (static_cast<float> (position - static_cast<double> (index)));
    const auto* here = samples + index * stride;

    return weights.behind * here[-stride] + weights.here * here[0] + weights.ahead * here[stride]
           + weights.twoAhead * here[2 * stride];
}

std::uint64_t FixedPhase::fromCycles (double cycles) noexcept
{
    if (! std::isfinite (cycles))
        return 0;

    const auto fraction = cycles - std::floor (cycles);
    return fraction < 1.0 ? static_cast<std::uint64_t> (fraction * 0x1p64) : 0;
}

double FixedPhase::toCycles (std::uint64_t phase) noexcept
{
    constexpr auto bitsBelowDouble = 11; // dropped, as rounding up could give a whole cycle
    return static_cast<double> (phase >> bitsBelowDouble) * 0x1p-53;
}
} // namespace Zn::Audio::Kernels
