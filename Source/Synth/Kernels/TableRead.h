#pragma once

#include "Synth/Kernels/Stereo.h"
#include "Synth/Kernels/TableView.h"

#include <cstdint>

namespace Zn::Audio::Kernels
{
/** The weights of four neighbouring samples for a place between the middle two: Catmull-Rom. */
struct TapWeights
{
    float behind, here, ahead, twoAhead;
};

constexpr TapWeights tapWeights (float fraction) noexcept
{
    const auto t = fraction, half = 0.5f * t;
    return { half * (t * (2.0f - t) - 1.0f),
             half * t * (3.0f * t - 5.0f) + 1.0f,
             half * (t * (4.0f - 3.0f * t) + 1.0f),
             half * t * (t - 1.0f) };
}

/** One value of a table. The phase is in cycles: at and above 1 the last sample holds, above 1.5 there is silence. */
float readTable (const TableView&, int channel, double phase) noexcept;

/** One tone that VoiceKernels::addTable adds to a voice: a table read at a steady pitch. */
struct TableRead
{
    TableView table;
    double phase = 0.0;     // cycles, 0..1; left where the next run goes on
    double increment = 0.0; // cycles per sample: frequency over sample rate
    Stereo gain { 1.0f, 1.0f };
};

/** A phase that wraps by itself: the cycle is 2 to the 64. It needs no modulo and does not drift in a run. */
struct FixedPhase
{
    static std::uint64_t fromCycles (double cycles) noexcept; // whole cycles are dropped; not finite gives 0
    static double toCycles (std::uint64_t phase) noexcept;    // always below 1
};
} // namespace Zn::Audio::Kernels
