#include "Synth/Kernels/Pan.h"

#include <cmath>

namespace Zn::Audio::Kernels
{
Stereo panGains (float pan) noexcept
{
    constexpr auto quarterTurn = 1.5707964f;
    return { std::cos (pan * quarterTurn), std::sin (pan * quarterTurn) };
}

void fillPanGains (LinearRamp& pan, float gain, std::span<Stereo> gains) noexcept
{
    for (auto& both : gains)
    {
        const auto [left, right] = panGains (pan.next());
        both = { gain * left, gain * right };
    }
}

void fillGains (LinearRamp& gain, std::span<Stereo> gains) noexcept
{
    for (auto& both : gains)
    {
        const auto value = gain.next();
        both = { value, value };
    }
}
} // namespace Zn::Audio::Kernels
