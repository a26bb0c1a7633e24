#pragma once

// Reading tables in the lanes that the including file is compiled for.

#include "Synth/Kernels/VectorKernels.h"
#include "Synth/Kernels/VectorLanes.h"

#include <cstddef>

namespace Zn::Audio::Kernels
{
namespace
{
/** The places where numLanes frames in a row read their table. Lanes hold the frames in the order 0 1 4 5, 2 3 6 7,
    which doubling each lane puts right.
*/
struct Places
{
    Words index;     // of the frame at or below the place
    Floats fraction; // of the way to the next
};

struct PhaseRun
{
    explicit PhaseRun (const VectorKernels::Tone& tone) noexcept
        : lastFrame (Longs {} + tone.lastFrame), step (Longs {} + numLanes * tone.increment)
    {
        const auto one = tone.increment;
        first = tone.phase + ZN_LANES ((Longs { 0, one }), (Longs { 0, one, 2 * one, 3 * one }));
        second = first + numPairs * one;
    }

    Places next() noexcept
    {
        const auto low = reinterpret_cast<Floats> (position (first));
        const auto high = reinterpret_cast<Floats> (position (second));
        const auto fractions =
            reinterpret_cast<Signed> (reinterpret_cast<Words> (evenLanes (low, high)) >> 8);
        first += step;
        second += step;

        return { reinterpret_cast<Words> (oddLanes (low, high)),
                 __builtin_convertvector(fractions, Floats) * 0x1p-24f };
    }

private:
    /** Frames above, fraction of a frame below the middle of the number. */
    Longs position (Longs phase) const noexcept
    {
        return timesLowHalf (phase >> 32, lastFrame) + (timesLowHalf (phase, lastFrame) >> 32);
    }

    Longs lastFrame, step, first, second;
};

struct Taps
{
    Floats behind, here, ahead, twoAhead;
};

inline Taps weigh (Floats t) noexcept
{
    const auto half = 0.5f * t, square = half * t;
    const auto twoAhead = square * t - square, threeTimes = 3.0f * twoAhead;
    return { (square - half) - twoAhead,
             (1.0f - (square + square)) + threeTimes,
             (square + half) - threeTimes,
             twoAhead };
}

inline Floats sum (const Taps& taps, const Taps& weights) noexcept
{
    return (taps.behind * weights.behind + taps.here * weights.here)
           + (taps.ahead * weights.ahead + taps.twoAhead * weights.twoAhead);
}

/** Both sides of half the frames: one place lies in each group of four lanes, beginning with the given one. */
template <int Lane>
inline Taps stereoTaps (const float* tapBehind, Words index) noexcept
{
    const auto place = [=] (int lane) { return tapBehind + 2 * std::size_t { index[lane] }; };
    const auto *even = place (Lane), *evenHigh = place (Lane + ZN_LANES (0, 4));
    const auto *odd = place (Lane + 1), *oddHigh = place (Lane + 1 + ZN_LANES (0, 4));
    const auto a = loadQuads (even, evenHigh), b = loadQuads (odd, oddHigh);
    const auto c = loadQuads (even + 4, evenHigh + 4), d = loadQuads (odd + 4, oddHigh + 4);
    return { lowPairs (a, b), highPairs (a, b), lowPairs (c, d), highPairs (c, d) };
}

inline Taps monoTaps (const float* tapBehind, Words index) noexcept
{
    const auto row = [=] (int lane) {
        return loadQuads (tapBehind + index[lane], tapBehind + index[lane + ZN_LANES (0, 4)]);
    };

    const auto a = row (0), b = row (1), c = row (2), d = row (3);
    const auto lowAB = lowLanes (a, b), lowCD = lowLanes (c, d);
    const auto highAB = highLanes (a, b), highCD = highLanes (c, d);
    return { lowPairs (lowAB, lowCD),
             highPairs (lowAB, lowCD),
             lowPairs (highAB, highCD),
             highPairs (highAB, highCD) };
}

template <int NumChannels>
inline Sound readTable (const float* table, const Places& places) noexcept
{
    const auto weights = weigh (places.fraction);

    if constexpr (NumChannels == 1)
    {
        const auto mono = sum (monoTaps (table - 1, places.index), weights);
        return { lowLanes (mono, mono), highLanes (mono, mono) };
    }
    else
    {
        const auto [w, x, y, z] = weights;
        const Taps first { lowLanes (w, w), lowLanes (x, x), lowLanes (y, y), lowLanes (z, z) };
        const Taps second { highLanes (w, w), highLanes (x, x), highLanes (y, y), highLanes (z, z) };
        return { sum (stereoTaps<0> (table - 2, places.index), first),
                 sum (stereoTaps<2> (table - 2, places.index), second) };
    }
}

inline void addScaled (float* frames, const Sound& sound, Floats firstGains, Floats secondGains) noexcept
{
    store (frames, load (frames) + sound.firstHalf * firstGains);
    store (frames + numLanes, load (frames + numLanes) + sound.secondHalf * secondGains);
}

/** The frames behind the last full vector, by way of a copy that has room for all lanes. */
template <int NumChannels>
inline void addRest (const VectorKernels::Tone& tone,
                     const Places& places,
                     const float* gains,
                     float* frames,
                     int numFrames) noexcept
{
    float copy[2 * numLanes] = {}, gainCopy[2 * numLanes] = {};

    for (auto i = 0; i < 2 * numFrames; ++i)
    {
        copy[i] = frames[i];
        gainCopy[i] = gains != nullptr ? gains[i] : (i % 2 == 0 ? tone.leftGain : tone.rightGain);
    }

    addScaled (copy,
               readTable<NumChannels> (tone.table, places),
               load (gainCopy),
               load (gainCopy + numLanes));

    for (auto i = 0; i < 2 * numFrames; ++i)
        frames[i] = copy[i];
}

template <int NumChannels>
void addTable (const VectorKernels::Tone& tone, float* frames, int numFrames) noexcept
{
    PhaseRun phases (tone);
    auto frame = 0;

    if (tone.gains == nullptr)
    {
        const auto gains = splatPair (tone.leftGain, tone.rightGain);

        for (; frame + numLanes <= numFrames; frame += numLanes)
            addScaled (frames + 2 * frame, readTable<NumChannels> (tone.table, phases.next()), gains, gains);

        if (frame < numFrames)
            addRest<NumChannels> (tone, phases.next(), nullptr, frames + 2 * frame, numFrames - frame);
    }
    else
    {
        for (; frame + numLanes <= numFrames; frame += numLanes)
        {
            const auto* gains = tone.gains + 2 * frame;
            addScaled (frames + 2 * frame,
                       readTable<NumChannels> (tone.table, phases.next()),
                       load (gains),
                       load (gains + numLanes));
        }

        if (frame < numFrames)
            addRest<NumChannels> (tone,
                                  phases.next(),
                                  tone.gains + 2 * frame,
                                  frames + 2 * frame,
                                  numFrames - frame);
    }
}
} // namespace
} // namespace Zn::Audio::Kernels
