#pragma once

#include "Sequencer/PatternSlot.h"

#include <juce_core/juce_core.h>

namespace Zn::PresetTool
{
/** The rows of a pattern that hold steps, the highest first, a line each with a character per column: `x` starts a step,
    `-` goes on with it, `o` starts one that is switched off.

        66 |....x.......x...|
        64 |x-..x.o.x-......|
*/
juce::String drawingOf (const Sequencer::PatternSlot& slot);

/** How long it lasts and what it is made of: "4/4, 16 columns, 12 steps". */
juce::String descriptionOf (const Sequencer::PatternSlot& slot);
} // namespace Zn::PresetTool
