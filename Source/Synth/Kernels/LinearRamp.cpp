#include "Synth/Kernels/LinearRamp.h"

namespace Zn::Audio::Kernels
{
void LinearRamp::reset (double sampleRate, double seconds) noexcept
{
    // Neither is ever negative, so the conversion is the floor. No length also stands for a rate that is not known.
    const auto samples = sampleRate * seconds;
    length = samples >= 1.0 && samples < 1.0e9 ? static_cast<int> (samples) : 0;
    jumpTo (target);
}

void LinearRamp::setTarget (float newTarget) noexcept
{
    if (newTarget == target)
        return;

    if (length <= 0)
    {
        jumpTo (newTarget);
        return;
    }

    target = newTarget;
    stepsLeft = length;
    step = (target - current) / static_cast<float> (length);
}

void LinearRamp::jumpTo (float value) noexcept
{
    current = target = value;
    stepsLeft = 0;
}

void LinearRamp::skip (int numSamples) noexcept
{
    if (numSamples >= stepsLeft)
    {
        jumpTo (target);
        return;
    }

    current += step * static_cast<float> (numSamples);
    stepsLeft -= numSamples;
}
} // namespace Zn::Audio::Kernels
