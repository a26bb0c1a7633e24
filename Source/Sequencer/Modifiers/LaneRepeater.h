#pragma once

#include "Sequencer/Modifiers/TimedSteps.h"

namespace Zn::Sequencer::Modifiers
{
/** Adds what a lane plays to the target, again and again until a loop of that length is full. What starts inside the
    loop is kept whole, the rest is left out. Stops early rather than fill a loop with more than can be played.
*/
void repeatLane (const TimedSteps& lane, double loopLength, RenderedEvents& target);
} // namespace Zn::Sequencer::Modifiers
