#pragma once

#include "Sequencer/Modifiers/StepPulseSequencer.h"
#include "Sequencer/MusicalTime.h"

namespace Zn::Sequencer
{
/** One of the patterns that a preset holds: the drawing and how long it lasts. Thread: message. */
class PatternSlot
{
public:
    bool multiply = false; // the time is that of one column of the grid, not of the whole pattern
    Modifiers::StepPulseSequencer pattern;
    MusicalTime time;

    /** An empty drawing over one bar of 4/4 in 16 columns. */
    PatternSlot();

    /** How long the whole pattern lasts, in quarter notes. */
    double length() const noexcept;

    /** Back to an empty drawing. Listeners and the play position stay. */
    void reset();

    /** Keys `Multiply`, `Pattern`, `Time`. */
    void reflect (Reflector& r);
};
} // namespace Zn::Sequencer
