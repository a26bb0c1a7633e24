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

double FixedPhase::fractionOf (double cycles) noexcept
{
    const auto fraction = cycles - std::floor (cycles);
    return fraction < 1.0 ? fraction : 0.0; // a tiny negative number rounds up to 1; infinity gives no number
}
} // namespace Zn::Audio::Kernels
