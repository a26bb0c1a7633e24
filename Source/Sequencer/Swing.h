#pragma once

#include "Sequencer/Span.h"

namespace Zn::Sequencer
{
/** How far the off-beats are moved: the middle of each cycle goes to `centre` of it. */
struct SwingSettings
{
    double centre = 0.5; // above 0 and below 1; 0.5 leaves everything in place
    double cycle = 1.0;  // quarter notes, above 0

    /** From the swing parameter's normalised value, 0.5 for none, and the index of its reference note, 0 to 2
        for 1/8, 1/4 and 1/2. The outer fifths of the range at both ends move the centre at half speed.
    */
    static SwingSettings from (double normalisedAmount, int referenceIndex) noexcept;

    bool operator== (const SwingSettings&) const = default;
};

/** A swing, prepared for many times. Thread: any. */
class SwingWarp
{
public:
    explicit SwingWarp (SwingSettings settings) noexcept;

    /** Where a time in quarter notes is moved to. Rises with the time, and leaves
        whole cycles where they are.
    */
    double moved (double time) const noexcept;

    /** Moves both ends of a span; the length never gets negative. */
    Ranges::Span moved (Ranges::Span span) const noexcept;

private:
    double cycle; // quarter notes
    double skew; // the place x of a time in its cycle, 0..1, becomes x to the power of 1 / skew; 1 is neutral
};

inline double swingWarp (double centre, double cycle, double time) noexcept
{
    return SwingWarp ({ centre, cycle }).moved (time);
}
} // namespace Zn::Sequencer
