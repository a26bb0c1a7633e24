#pragma once

#include <span>
#include <vector>

namespace Zn::Audio::Sampler
{
/** Reads a cycle between its samples: a sinc under a Kaiser window, over a cycle that repeats for ever.

    What lies below four fifths of the cycle's own band comes out to better than -100 dB, and the same on every run.
    One for the process, as its weights take a while to work out; it never changes. Thread: any but audio.
*/
class PeriodicSinc
{
public:
    PeriodicSinc();

    /** Spreads one whole cycle over the destinations, one of which belongs to each of the one or two cycles: sample j
        of m is the cycle at j / (m - 1) of its length, so that the last is the first again. The cycles are of one
        length and so are the destinations, which hold at least two samples.
    */
    void resample (std::span<const std::span<const float>> cycles,
                   std::span<const std::span<float>> destinations) const;

private:
    static constexpr int numTaps = 32, numPhases = 1024;

    template <std::size_t numChannels>
    void resampleChannels (std::span<const std::span<const float>> cycles,
                           std::span<const std::span<float>> destinations) const;

    void makePhase (int phase);

    std::vector<float> weights; // numTaps for each phase, and for one more to interpolate towards
};
} // namespace Zn::Audio::Sampler
