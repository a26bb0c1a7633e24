#pragma once

#include "Support/LiteralVoice.h"
#include "Synth/Kernels/VoiceKernels.h"

namespace Zn::Tests
{
/** The kernels to hold against a plain reading; where a processor lacks a set its kernels are the scalar ones. */
inline constexpr Audio::Kernels::InstructionSet allSets[] { Audio::Kernels::InstructionSet::scalar,
                                                            Audio::Kernels::InstructionSet::baseline,
                                                            Audio::Kernels::InstructionSet::avx2 };

/** A table as the kernels read it, made from plain channels: interleaved, with its guards. */
class KernelTable
{
public:
    explicit KernelTable (const LiteralTable&);

    Audio::Kernels::TableView view() const;

private:
    std::vector<float> samples;
    int numFrames, numChannels;
};
} // namespace Zn::Tests
