#pragma once

// All loops of VectorKernels, for the lanes that the including file is compiled for.

#include "Synth/Kernels/VectorFilter.h"
#include "Synth/Kernels/VectorTables.h"

namespace Zn::Audio::Kernels
{
namespace
{
void mixVoice (
    const float* frames, const float* levels, float gain, float* left, float* right, int numFrames) noexcept
{
    auto i = 0;

    for (; i + numLanes <= numFrames; i += numLanes)
    {
        const auto* source = frames + 2 * i;
        const auto a = loadQuads (source, source + 8), b = loadQuads (source + 4, source + 12);
        const auto gains = load (levels + i) * gain;
        store (left + i, load (left + i) + evenLanes (a, b) * gains);
        store (right + i, load (right + i) + oddLanes (a, b) * gains);
    }

    for (; i < numFrames; ++i)
    {
        left[i] += frames[2 * i] * (levels[i] * gain);
        right[i] += frames[2 * i + 1] * (levels[i] * gain);
    }
}

constexpr VectorKernels vectorLoops {
    addTable<2>,
    addTable<1>,
    { { filterVoices<FilterType::lowPass, 1>, filterVoices<FilterType::lowPass, 2> },
      { filterVoices<FilterType::bandPass, 1>, filterVoices<FilterType::bandPass, 2> },
      { filterVoices<FilterType::highPass, 1>, filterVoices<FilterType::highPass, 2> } },
    mixVoice,
};
} // namespace
} // namespace Zn::Audio::Kernels
