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
    /** Whole cycles are dropped; what is not finite gives 0. */
    static std::uint64_t fromCycles (double cycles) noexcept
    {
        // By way of a signed number, which processors convert in one step; the bit that is lost is below a double's.
        return cycles >= 0.0 && cycles < 1.0
                   ? static_cast<std::uint64_t> (static_cast<std::int64_t> (cycles * 0x1p63)) * 2
                   : fromCycles (fractionOf (cycles));
    }

    /** Always below 1: the bits that do not fit a double are dropped, as rounding could give a whole cycle. */
    static double toCycles (std::uint64_t phase) noexcept
    {
        constexpr auto bitsOfDouble = 53;
        return static_cast<double> (static_cast<std::int64_t> (phase >> (64 - bitsOfDouble))) * 0x1p-53;
    }

private:
    static double fractionOf (double cycles) noexcept; // from 0 to below 1
};
} // namespace Zn::Audio::Kernels
