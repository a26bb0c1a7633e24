#include "Synth/Kernels/LinearRamp.h"

namespace Zn::Audio::Kernels
{
template <typename Value>
void Ramp<Value>::reset (double sampleRate, double seconds) noexcept
{
    // Neither is ever negative, so the conversion is the floor. No length also stands for a rate that is not known.
    const auto samples = sampleRate * seconds;
    length = samples >= 1.0 && samples < 1.0e9 ? static_cast<int> (samples) : 0;
    jumpTo (target);
}

template <typename Value>
void Ramp<Value>::setTarget (Value newTarget) noexcept
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
    step = (target - current) / static_cast<Value> (length);
}

template <typename Value>
void Ramp<Value>::jumpTo (Value value) noexcept
{
    current = target = value;
    stepsLeft = 0;
}

template <typename Value>
void Ramp<Value>::skip (int numSamples) noexcept
{
    if (numSamples >= stepsLeft)
    {
        jumpTo (target);
        return;
    }

    current += step * static_cast<Value> (numSamples);
    stepsLeft -= numSamples;
}

template struct Ramp<float>;
template struct Ramp<double>;
} // namespace Zn::Audio::Kernels
