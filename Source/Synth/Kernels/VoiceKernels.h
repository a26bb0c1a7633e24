#pragma once

#include "Synth/Kernels/StateVariableFilter.h"
#include "Synth/Kernels/Stereo.h"
#include "Synth/Kernels/TableRead.h"

#include <span>

namespace Zn::Audio::Kernels
{
struct VectorKernels;

enum class InstructionSet
{
    scalar,   // plain loops, on every machine: what the others are compared with
    baseline, // four lanes, what every processor of this architecture has: SSE2, NEON
    avx2      // eight lanes and fused multiplication
};

/** The work of a voice that is done sample by sample, in one form for each kind of processor.

    A voice is rendered into interleaved frames: clear them, addTable for every tone, then filterVoices with all
    voices of the block, then mixVoice into the block. All forms give the same sound, to less than -120 dB.
    Thread: audio; a set never changes.
*/
class VoiceKernels
{
public:
    constexpr explicit VoiceKernels (const VectorKernels& setToCall) noexcept : set (setToCall) {}

    /** Adds a tone with steady gains, and advances its phase. Gains that are both 0 only advance it. */
    void addTable (TableRead&, std::span<Stereo> frames) const noexcept;

    /** Adds a tone with gains of its own for each frame, for ramps; the read's own gain is left out. */
    void addTable (TableRead&, std::span<const Stereo> gains, std::span<Stereo> frames) const noexcept;

    /** Filters voices side by side, each in place. Leave out a voice whose filter is off: its state then stays.

        Fastest with many voices in one call; they are taken four at a time, in any order.
    */
    void filterVoices (std::span<const FilteredVoice>, FilterType, int numStages) const noexcept;

    /** Adds a finished voice to the block, scaled by its envelope and one more gain. All of one length. */
    void mixVoice (std::span<const Stereo> frames,
                   std::span<const float> levels,
                   float gain,
                   std::span<float> left,
                   std::span<float> right) const noexcept;

private:
    const VectorKernels& set;
};

/** Whether this processor, and this build, have a set. */
bool isAvailable (InstructionSet) noexcept;

/** A set of which isAvailable; the scalar one for any other. */
const VoiceKernels& kernelsFor (InstructionSet) noexcept;

/** The fastest set of this processor: looked up once, cheap from then on. */
const VoiceKernels& bestKernels() noexcept;
} // namespace Zn::Audio::Kernels
