#include "Synth/Kernels/VoiceKernels.h"

#include "Synth/Kernels/VectorKernels.h"

#include <algorithm>
#include <array>

namespace Zn::Audio::Kernels
{
namespace
{
void addTone (const VectorKernels& set,
              TableRead& read,
              const Stereo* gains,
              std::span<Stereo> frames) noexcept
{
    const auto numFrames = static_cast<int> (frames.size());
    VectorKernels::Tone tone;
    tone.table = read.table.frames;
    tone.lastFrame = static_cast<std::uint32_t> (read.table.numFrames - 1);
    tone.phase = FixedPhase::fromCycles (read.phase);
    tone.increment = FixedPhase::fromCycles (read.increment);
    tone.leftGain = read.gain.left;
    tone.rightGain = read.gain.right;
    tone.gains = gains != nullptr ? &gains->left : nullptr;

    read.phase = FixedPhase::toCycles (tone.phase + tone.increment * frames.size());

    if (numFrames > 0 && (gains != nullptr || read.gain != Stereo {}))
        (read.table.numChannels == 1 ? set.addMonoTable
                                     : set.addStereoTable) (tone, &frames.front().left, numFrames);
}
} // namespace

void VoiceKernels::addTable (TableRead& read, std::span<Stereo> frames) const noexcept
{
    addTone (set, read, nullptr, frames);
}

void VoiceKernels::addTable (TableRead& read,
                             std::span<const Stereo> gains,
                             std::span<Stereo> frames) const noexcept
{
    addTone (set, read, gains.data(), frames.first (std::min (frames.size(), gains.size())));
}

void VoiceKernels::filterVoices (std::span<const FilteredVoice> voices,
                                 FilterType type,
                                 int numStages) const noexcept
{
    constexpr size_t voicesAtOnce = 8; // as many as the widest set takes side by side
    const auto stages = static_cast<size_t> (std::clamp (numStages, 1, StereoFilterState::maxStages));

    if (voices.empty() || voices.front().frames.empty())
        return;

    const auto numFrames = static_cast<int> (voices.front().frames.size());

    while (! voices.empty())
    {
        const auto group = voices.first (std::min (voices.size(), voicesAtOnce));
        std::array<VectorKernels::Voice, voicesAtOnce> lanes;

        std::transform (group.begin(), group.end(), lanes.begin(), [] (const FilteredVoice& voice) {
            return VectorKernels::Voice { &voice.frames.front().left,
                                          &voice.coefficients,
                                          &voice.state->stages.front().s1.left };
        });

        set.filterVoices[static_cast<size_t> (type)][stages - 1](lanes.data(),
                                                                 static_cast<int> (group.size()),
                                                                 numFrames);
        voices = voices.subspan (group.size());
    }
}

void VoiceKernels::mixVoice (std::span<const Stereo> frames,
                             std::span<const float> levels,
                             float gain,
                             std::span<float> left,
                             std::span<float> right) const noexcept
{
    if (! frames.empty())
        set.mixVoice (&frames.front().left,
                      levels.data(),
                      gain,
                      left.data(),
                      right.data(),
                      static_cast<int> (frames.size()));
}

bool isAvailable (InstructionSet instructions) noexcept
{
#if ZN_KERNELS_HAVE_AVX2
    if (instructions == InstructionSet::avx2)
        return __builtin_cpu_supports ("avx2") && __builtin_cpu_supports ("fma");
#endif

    return instructions != InstructionSet::avx2;
}

const VoiceKernels& kernelsFor (InstructionSet instructions) noexcept
{
    static constexpr VoiceKernels scalar { scalarKernels }, baseline { baselineKernels };

#if ZN_KERNELS_HAVE_AVX2
    static constexpr VoiceKernels avx2 { avx2Kernels };

    if (instructions == InstructionSet::avx2 && isAvailable (instructions))
        return avx2;
#endif

    return instructions == InstructionSet::baseline ? baseline : scalar;
}

const VoiceKernels& bestKernels() noexcept
{
    static const auto& best =
        kernelsFor (isAvailable (InstructionSet::avx2) ? InstructionSet::avx2 : InstructionSet::baseline);
    return best;
}
} // namespace Zn::Audio::Kernels
