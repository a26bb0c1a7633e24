// The loops in their plainest form: what the others are compared with.

#include "Synth/Kernels/StateVariableFilter.h"
#include "Synth/Kernels/TableRead.h"
#include "Synth/Kernels/VectorKernels.h"

namespace Zn::Audio::Kernels
{
namespace
{
template <int NumChannels>
void addTable (const VectorKernels::Tone& tone, float* frames, int numFrames) noexcept
{
    const TableView table { tone.table, static_cast<int> (tone.lastFrame) + 1, NumChannels };
    auto phase = tone.phase;

    for (auto i = 0; i < numFrames; ++i, frames += 2, phase += tone.increment)
    {
        const auto cycles = FixedPhase::toCycles (phase);
        const auto left = tone.gains != nullptr ? tone.gains[2 * i] : tone.leftGain;
        const auto right = tone.gains != nullptr ? tone.gains[2 * i + 1] : tone.rightGain;
        frames[0] += readTable (table, 0, cycles) * left;
        frames[1] += readTable (table, 1, cycles) * right;
    }
}

template <FilterType Type, int NumStages>
void filterVoices (const VectorKernels::Voice* voices, int numVoices, int numFrames) noexcept
{
    for (const auto* voice = voices; voice != voices + numVoices; ++voice)
        for (auto side = 0; side < 2; ++side)
            for (auto stage = 0; stage < NumStages; ++stage)
            {
                auto *s1 = voice->state + 4 * stage + side, *s2 = s1 + 2;
                FilterState state { *s1, *s2 };

                for (auto i = 0; i < numFrames; ++i)
                {
                    auto& sample = voice->frames[2 * i + side];
                    sample = filterSample<Type> (sample, *voice->coefficients, state);
                }

                *s1 = state.s1;
                *s2 = state.s2;
            }
}

void mixVoice (
    const float* frames, const float* levels, float gain, float* left, float* right, int numFrames) noexcept
{
    for (auto i = 0; i < numFrames; ++i)
    {
        left[i] += frames[2 * i] * (levels[i] * gain);
        right[i] += frames[2 * i + 1] * (levels[i] * gain);
    }
}
} // namespace

constinit const VectorKernels scalarKernels {
    addTable<2>,
    addTable<1>,
    { { filterVoices<FilterType::lowPass, 1>, filterVoices<FilterType::lowPass, 2> },
      { filterVoices<FilterType::bandPass, 1>, filterVoices<FilterType::bandPass, 2> },
      { filterVoices<FilterType::highPass, 1>, filterVoices<FilterType::highPass, 2> } },
    mixVoice,
};
} // namespace Zn::Audio::Kernels
