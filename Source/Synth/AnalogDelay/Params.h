#pragma once

#include "Parameters/ParamKinds.h"
#include "Synth/AnalogDelay/TimeMap.h"

namespace Zn::Audio::AnalogDelay
{
struct Params : ParamList
{
    FloatParam analog { *this, "Analog", { 0.0f, 1.0f }, 0.5f }; // 0 bright, 1 dark
    ChoiceParam mode { *this, "Mode", { "Sync", "Free" }, 0 };
    FloatParam time { *this, "Time", { 0.01f, 1.0f }, 0.1f, {}, "s" }; // in mode "Free"
    ChoiceParam timeSync { *this, "TimeSync", TimeMap::names(), 2 };
    FloatParam feedback { *this, "Feedback", { 0.0f, 0.4f }, 0.1f }; // gain
    FloatParam mix { *this, "Mix", { 0.0f, 1.0f }, 0.0f };           // 0 dry, 1 wet

    /** The time of an echo. A tempo, in quarters a minute, that is below 1 or not a number counts as 100.
        Thread: audio.
    */
    double delaySeconds (double tempo) const noexcept;

    /** How long echoes are heard: until they are 60 dB below what they repeat. 40 seconds at
        most. Thread: any.
    */
    double tailSeconds (double tempo) const noexcept;
};
} // namespace Zn::Audio::AnalogDelay
