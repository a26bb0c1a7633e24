#pragma once

#include "Sequencer/PatternSlot.h"

namespace Zn::Audio::Plugins::Vornel
{
/** Replaces a slot by the pattern that a new instance plays: one bar of sixteenths that walks up the held chord and
    back, with the accents of a straight beat.
*/
void drawDefaultPattern (Sequencer::PatternSlot& slot);
} // namespace Zn::Audio::Plugins::Vornel
