#pragma once

#include "GUI/Pattern/Drawing.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** How a pattern is divided into beats, which are quarter notes, and bars. A value. */
struct RollBeats
{
    double quarters = 4.0;    // length of the pattern, above 0
    double barQuarters = 4.0; // length of a bar, above 0
    int grid = 16;            // columns of the pattern

    static RollBeats of (const Drawing& drawing);

    /** As a part of the pattern. */
    double timeOf (double beat) const noexcept { return beat / quarters; }

    double beatOf (double time) const noexcept { return time * quarters; }

    /** Whether a bar begins with a beat, 0 the first. */
    bool isBar (int beat) const noexcept;

    /** Every so many beats there is room for a line or a number: a power of two. */
    int strideFor (double pixelsPerBeat, double leastPixels) const noexcept;

    /** As it is told: "2.3" is the third column of the second beat. */
    juce::String nameOf (double time) const;

    bool operator== (const RollBeats&) const = default;
};
} // namespace Zn::GUI
