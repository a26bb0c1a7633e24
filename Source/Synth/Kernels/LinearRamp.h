#pragma once

namespace Zn::Audio::Kernels
{
/** Moves a value to its target in equal steps: the same steps as juce::SmoothedValue makes, without JUCE.

    Thread: audio, but for reset, which belongs to prepare.
*/
struct LinearRamp
{
    float current = 0.0f, target = 0.0f;
    float step = 0.0f; // per sample
    int stepsLeft = 0; // 0 when the target is reached
    int length = 0;    // samples from one target to the next

    /** Sets the length of every later ramp and ends the present one. */
    void reset (double sampleRate, double seconds) noexcept;

    /** Starts a ramp from the present value; the same target again lets a ramp go on. */
    void setTarget (float newTarget) noexcept;

    void jumpTo (float value) noexcept;

    bool isRamping() const noexcept { return stepsLeft > 0; }

    /** The value of the next sample. */
    float next() noexcept
    {
        if (stepsLeft == 0)
            return target;

        current = --stepsLeft > 0 ? current + step : target;
        return current;
    }

    /** Passes over some samples at once, as when nobody hears what would be scaled. */
    void skip (int numSamples) noexcept;
};
} // namespace Zn::Audio::Kernels
