#pragma once

#include <juce_graphics/juce_graphics.h>

#include <array>

namespace Zn::GUI
{
/** An envelope's knobs: seconds, and the sustain as a level. */
struct EnvelopeTimes
{
    float attack = 0.0f, decay = 0.0f, sustain = 1.0f, release = 0.0f;

    bool operator== (const EnvelopeTimes&) const = default;
};

/** Where the corners of an envelope lie in its picture. Times are as wide as their roots, so that short ones can be seen
    and held; between two corners level and time are straight, as the synth plays them. All are proportions; levels rise.
*/
struct EnvelopeShape
{
    enum Corner
    {
        start,
        peak,         // the attack is over
        sustainStart, // the decay is over
        sustainEnd,   // the key is let go
        end,
        numCorners
    };

    std::array<juce::Point<float>, numCorners> corners;
    float widthPerRoot = 0.0f; // of a second

    /** The scale is the same for all, but finer where the times need more room. */
    static EnvelopeShape of (const EnvelopeTimes&);

    /** The time that lies between two places. */
    float secondsBetween (float startX, float endX) const noexcept;

    /** The attack, or the decay, that brings the corner at its end to a place. */
    static float attackFor (const EnvelopeTimes&, float x) noexcept;
    static float decayFor (const EnvelopeTimes&, float x) noexcept;
};
} // namespace Zn::GUI
