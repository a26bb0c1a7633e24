#include "Synth/FiniteSound.h"

#include <bit>
#include <cstdint>

namespace Zn::Audio
{
bool isFinite (const juce::AudioBuffer<float>& buffer) noexcept
{
    constexpr std::uint32_t withoutSign = 0x7fffffff, infinite = 0x7f800000; // and above: not a number
    std::uint32_t isBad = 0;

    for (auto channel = 0; channel < buffer.getNumChannels(); ++channel)
    {
        const auto* samples = buffer.getReadPointer (channel);

        for (auto i = 0; i < buffer.getNumSamples(); ++i)
            isBad |= (std::bit_cast<std::uint32_t> (samples[i]) & withoutSign) >= infinite ? 1u : 0u;
    }

    return isBad == 0;
}
} // namespace Zn::Audio
