#pragma once

// The filter of several voices in the lanes that the including file is compiled for.

#include "Synth/Kernels/StateVariableFilter.h"
#include "Synth/Kernels/VectorKernels.h"
#include "Synth/Kernels/VectorLanes.h"

namespace Zn::Audio::Kernels
{
namespace
{
/** One stage of the filter for the voices of one vector. The loop is written so that each new state is one addition
    and one multiplication behind the last, as the loop waits for nothing else.
*/
struct FilterStage
{
    Floats s1, s2;
};

struct FilterLanes
{
    Floats damping, g, twoG;                 // damping: g + r2
    Floats high, band, twoBand, low, twoLow; // by what the loop's error counts in each output and state
};

template <FilterType Type>
inline Floats filterFrame (Floats input, const FilterLanes& c, FilterStage& stage) noexcept
{
    const auto [s1, s2] = stage;
    const auto error = (input - c.damping * s1) - s2;
    stage.s1 = s1 + c.twoBand * error;
    stage.s2 = (s2 + c.twoG * s1) + c.twoLow * error;

    if constexpr (Type == FilterType::highPass)
        return c.high * error;
    else if constexpr (Type == FilterType::bandPass)
        return s1 + c.band * error;
    else
        return (s2 + c.g * s1) + c.low * error;
}

/** The voices in the lanes of one vector, left and right of each side by side. */
template <FilterType Type, int NumStages>
struct FilterVector
{
    /** Takes the first of the voices, and the last of them again for lanes that would be empty: twice the same work on
        the same frames, which is the same result. All vectors of a group must therefore read before any writes.
    */
    void load (const VectorKernels::Voice* firstVoice, int numVoices) noexcept
    {
        for (auto lane = 0; lane < numLanes; ++lane)
        {
            const auto pair = lane / 2, side = lane % 2;
            voices[pair] = firstVoice + (pair < numVoices ? pair : numVoices - 1);
            const auto [g, r2, h] = *voices[pair]->coefficients;
            c.damping[lane] = g + r2;
            c.g[lane] = g;
            c.high[lane] = h;

            for (auto stage = 0; stage < NumStages; ++stage)
            {
                stages[stage].s1[lane] = voices[pair]->state[4 * stage + side];
                stages[stage].s2[lane] = voices[pair]->state[4 * stage + 2 + side];
            }
        }

        c.twoG = c.g + c.g;
        c.band = c.g * c.high;
        c.twoBand = c.band + c.band;
        c.low = c.g * c.band;
        c.twoLow = c.low + c.low;
    }

    void store() const noexcept
    {
        for (auto lane = 0; lane < numLanes; ++lane)
            for (auto stage = 0; stage < NumStages; ++stage)
            {
                const auto pair = lane / 2, side = lane % 2;
                voices[pair]->state[4 * stage + side] = stages[stage].s1[lane];
                voices[pair]->state[4 * stage + 2 + side] = stages[stage].s2[lane];
            }
    }

    Floats filter (Floats frame) noexcept
    {
        for (auto stage = 0; stage < NumStages; ++stage)
            frame = filterFrame<Type> (frame, c, stages[stage]);

        return frame;
    }

    float* frames (int pair, int frame) const noexcept { return voices[pair]->frames + 2 * frame; }

    /** Two frames of each voice, the voices' frames side by side in each vector. */
    Sound read (int frame) const noexcept
    {
        const auto even = loadQuads (frames (0, frame), frames (ZN_LANES (0, 2), frame));
        const auto odd = loadQuads (frames (1, frame), frames (ZN_LANES (1, 3), frame));
        return { lowPairs (even, odd), highPairs (even, odd) };
    }

    void write (const Sound& sound, int frame) const noexcept
    {
        const auto even = lowPairs (sound.firstHalf, sound.secondHalf);
        const auto odd = highPairs (sound.firstHalf, sound.secondHalf);
        storeQuads (frames (0, frame), frames (ZN_LANES (0, 2), frame), even);
        storeQuads (frames (1, frame), frames (ZN_LANES (1, 3), frame), odd);
    }

    Floats readOne (int frame) const noexcept
    {
        Floats lanes {};

        for (auto lane = 0; lane < numLanes; ++lane)
            lanes[lane] = frames (lane / 2, frame)[lane % 2];

        return lanes;
    }

    void writeOne (Floats lanes, int frame) const noexcept
    {
        for (auto lane = 0; lane < numLanes; ++lane)
            frames (lane / 2, frame)[lane % 2] = lanes[lane];
    }

    FilterLanes c {};
    FilterStage stages[StereoFilterState::maxStages] = {};
    const VectorKernels::Voice* voices[numPairs] = {};
};

/** One vector leaves the processor waiting for its own results; two fill the gaps of each other. */
template <FilterType Type, int NumStages>
void filterTwoVectors (const VectorKernels::Voice* voices, int numVoices, int numFrames) noexcept
{
    FilterVector<Type, NumStages> a, b;
    a.load (voices, numPairs);
    b.load (voices + numPairs, numVoices - numPairs);
    auto frame = 0;

    for (; frame + 2 <= numFrames; frame += 2)
    {
        auto inA = a.read (frame), inB = b.read (frame);
        inA.firstHalf = a.filter (inA.firstHalf);
        inB.firstHalf = b.filter (inB.firstHalf);
        inA.secondHalf = a.filter (inA.secondHalf);
        inB.secondHalf = b.filter (inB.secondHalf);
        a.write (inA, frame);
        b.write (inB, frame);
    }

    if (frame < numFrames)
    {
        a.writeOne (a.filter (a.readOne (frame)), frame);
        b.writeOne (b.filter (b.readOne (frame)), frame);
    }

    a.store();
    b.store();
}

template <FilterType Type, int NumStages>
void filterOneVector (const VectorKernels::Voice* voices, int numVoices, int numFrames) noexcept
{
    FilterVector<Type, NumStages> lanes;
    lanes.load (voices, numVoices);
    auto frame = 0;

    for (; frame + 2 <= numFrames; frame += 2)
    {
        auto sound = lanes.read (frame);
        sound.firstHalf = lanes.filter (sound.firstHalf);
        sound.secondHalf = lanes.filter (sound.secondHalf);
        lanes.write (sound, frame);
    }

    if (frame < numFrames)
        lanes.writeOne (lanes.filter (lanes.readOne (frame)), frame);

    lanes.store();
}

template <FilterType Type, int NumStages>
void filterVoices (const VectorKernels::Voice* voices, int numVoices, int numFrames) noexcept
{
    for (; numVoices > numPairs; voices += 2 * numPairs, numVoices -= 2 * numPairs)
        filterTwoVectors<Type, NumStages> (voices,
                                           numVoices < 2 * numPairs ? numVoices : 2 * numPairs,
                                           numFrames);

    if (numVoices > 0)
        filterOneVector<Type, NumStages> (voices, numVoices, numFrames);
}
} // namespace
} // namespace Zn::Audio::Kernels
