#pragma once

#include "Support/LiteralVoice.h"
#include "Synth/Kernels/TableView.h"

namespace Zn::Test
{
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
} // namespace Zn::Test
