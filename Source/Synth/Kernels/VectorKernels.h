#pragma once

#include <cstdint>

namespace Zn::Audio::Kernels
{
struct FilterCoefficients;
struct Stereo;

/** What the object file of one instruction set offers to VoiceKernels; nobody else calls it.

    Nothing but plain pointers and numbers crosses over. A function of the standard library that such a file
    instantiated could be picked by the linker for the whole program, which other processors could then not run.
*/
struct VectorKernels
{
    struct Tone
    {
        const float* table = nullptr; // first frame; guards lie around the table
        std::uint32_t lastFrame = 0;  // the cycle is read over this many frames
        std::uint64_t phase = 0;      // the cycle is 2 to the 64
        std::uint64_t increment = 0;  // per frame
        float leftGain = 0.0f, rightGain = 0.0f;
        const float* gains = nullptr; // left and right of each frame, or none: then the two above
    };

    struct Voice
    {
        float* frames = nullptr; // left, right
        const FilterCoefficients* coefficients = nullptr;
        float* state = nullptr; // for each stage: s1 left, right, s2 left, right
    };

    void (*addStereoTable) (const Tone&, float* frames, int numFrames) noexcept = nullptr;
    void (*addMonoTable) (const Tone&, float* frames, int numFrames) noexcept = nullptr;

    /** Types in the order of FilterType; one or two stages. */
    void (*filterVoices[3][2]) (const Voice*, int numVoices, int numFrames) noexcept = {};

    void (*mixVoice) (const float* frames,
                      const float* levels,
                      float gain,
                      float* left,
                      float* right,
                      int numFrames) noexcept = nullptr;
};

extern const VectorKernels scalarKernels, baselineKernels;
extern const VectorKernels avx2Kernels; // only in builds for x86
} // namespace Zn::Audio::Kernels
