#pragma once

#include "Sequencer/Duration.h"
#include "Sequencer/Emitter.h"
#include "Sequencer/Modifiers/Base.h"

namespace Zn::Sequencer::Modifiers
{
/** The drawn pattern. Its steps are fractions of the whole, so that a change of its length stretches the
    drawing and never rewrites it. Steps that start together form a chord.
*/
class StepPulseSequencer : public Base
{
public:
    static constexpr auto typeName = "StepPulseSequencer";
    static constexpr auto maxGrid = 4096; // columns that a file can ask for

    Duration duration;
    double gate = 0.98;           // of a step that is laid out, as a fraction of its column
    int grid = 1;                 // columns of the drawing, at least 1
    std::vector<TimedNote> steps; // starts and lengths as fractions of the pattern; rows as note numbers

    /** One quarter note long, with one disabled step. */
    StepPulseSequencer();

    const Emitter& getEmitter() const noexcept { return emitter; }

    /** Divides the pattern into a number of equal steps. Steps that exist keep their row and their state. */
    void layOut (int numSteps);

    std::unique_ptr<Base> clone() const override;

    /** Adds the enabled steps in stored order and sets the length. A pattern without any step gets no mark.
    */
    void render (RenderedEvents& target) const override;

private:
    /** Keys `Duration`, `length` for the gate, `Steps`, `grid`. Broadcasts a change after loading. */
    void reflectFields (Reflector& r) override;

    Emitter emitter;
};
} // namespace Zn::Sequencer::Modifiers
