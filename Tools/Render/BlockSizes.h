#pragma once

#include <juce_core/juce_core.h>

#include <optional>

namespace Zn::Render
{
/** How long the host's blocks are: all the same, or changing in an order that a seed fixes. */
class BlockSizes
{
public:
    static BlockSizes fixed (int samples) { return BlockSizes (samples, {}); }

    /** Each block has from 1 to the largest number of samples. */
    static BlockSizes random (juce::int64 seed, int largest)
    {
        return BlockSizes (largest, juce::Random (seed));
    }

    int getLargest() const noexcept { return largest; }
    int next() noexcept { return generator ? 1 + generator->nextInt (largest) : largest; }

private:
    BlockSizes (int largestToUse, std::optional<juce::Random> generatorToUse)
        : largest (largestToUse), generator (generatorToUse)
    {}

    int largest;
    std::optional<juce::Random> generator;
};
} // namespace Zn::Render
