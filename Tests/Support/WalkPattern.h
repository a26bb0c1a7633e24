#pragma once

#include "Sequencer/PatternController.h"

#include <array>

namespace Zn::Tests
{
/** Draws in the first slot sixteenths over one bar that walk up the held chord, on into the next octave, and back. */
inline void drawWalk (Sequencer::PatternController& patterns)
{
    constexpr auto lowestHeld = 64; // the row of the lowest held key
    constexpr std::array rows { 0, 1, 2, 3, 4, 3, 2, 1, 2, 3, 4, 5, 6, 4, 3, 2 };
    constexpr std::array velocities { 0.95f, 0.55f, 0.70f, 0.60f, 0.85f, 0.55f, 0.70f, 0.50f,
                                      0.90f, 0.55f, 0.75f, 0.60f, 0.85f, 0.60f, 0.70f, 0.55f };
    constexpr auto width = 1.0 / static_cast<double> (rows.size());

    const Sequencer::PatternController::Edit edit (patterns);
    auto& slot = patterns.getSlots().front();
    slot.reset();

    for (std::size_t column = 0; column < rows.size(); ++column)
    {
        Sequencer::TimedNote step;
        step.time = { static_cast<double> (column) * width, width };
        step.event.noteNum = lowestHeld + rows[column];
        step.event.velocity = velocities[column];
        step.enabled = true;
        slot.pattern.steps.push_back (step);
    }
}
} // namespace Zn::Tests
