#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <cmath>

namespace Zn::GUI
{
/** Turns of a wheel as whole steps. A notch is one; of a wheel without notches, what is left over waits for the next
    turn. Thread: message.
*/
class WheelSteps
{
public:
    /** Steps up, or down below 0. `smoothStep` is how far a wheel without notches turns for one. */
    int upIn (const juce::MouseWheelDetails& wheel, float smoothStep) noexcept
    {
        const auto turned = std::abs (wheel.deltaY) > std::abs (wheel.deltaX) ? wheel.deltaY : wheel.deltaX;
        const auto up = wheel.isReversed ? -turned : turned;
        remainder += wheel.isSmooth ? up / smoothStep : std::copysign (1.0f, up);

        const auto steps = static_cast<int> (remainder);
        remainder -= static_cast<float> (steps);
        return steps;
    }

private:
    float remainder = 0.0f; // of a step
};
} // namespace Zn::GUI
