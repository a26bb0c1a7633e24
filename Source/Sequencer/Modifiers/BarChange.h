#pragma once

#include "Sequencer/Modifiers/TimedSteps.h"

namespace Zn::Sequencer::Modifiers
{
/** Gives a bar of a lane as many sequences as it has beats, each as long as a beat.

    The bar's are those that start inside the old bar, whose place in the lane is `oldTime`; without any the bar lies
    behind the last one. New beats are blank and follow the old ones; beats that are gone take their sequences along,
    and later ones move up. A bar that the lane ends with loses nothing: what it no longer plays stays.
*/
void fitToBar (TimedSteps::Sequences& lane, Ranges::Span oldTime, Bar oldBar, Bar newBar);
} // namespace Zn::Sequencer::Modifiers
