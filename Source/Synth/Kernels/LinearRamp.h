#pragma once

namespace Zn::Audio::Kernels
{
/** Moves a value to its target in equal steps: the same steps as juce::SmoothedValue makes, without JUCE.

    Steps are added up, so their rounding is too, and the last one makes up for it: choose a Value in which that is
    not heard. Thread: audio, but for reset, which belongs to prepare.
*/
template <typename Value>
struct Ramp
{
    Value current = 0, target = 0;
    Value step = 0;    // per sample
    int stepsLeft = 0; // 0 when the target is reached
    int length = 0;    // samples from one target to the next

    /** Sets the length of every later ramp and ends the present one. */
    void reset (double sampleRate, double seconds) noexcept;

    /** Starts a ramp from the present value; the same target again lets a ramp go on. */
    void setTarget (Value newTarget) noexcept;

    void jumpTo (Value value) noexcept;

    bool isRamping() const noexcept { return stepsLeft > 0; }

    /** The value of the next sample. */
    Value next() noexcept
    {
        if (stepsLeft == 0)
            return target;

        current = --stepsLeft > 0 ? current + step : target;
        return current;
    }

    /** Passes over some samples at once, as when nobody hears what would be scaled. */
    void skip (int numSamples) noexcept;
};

using LinearRamp = Ramp<float>; // of a gain or a place
using DelayRamp = Ramp<double>; // of a time in samples: thousands of them, of which each fraction is heard
} // namespace Zn::Audio::Kernels
