#pragma once

#include "GUI/Pattern/RollBeats.h"
#include "GUI/Pattern/RowNames.h"

namespace Zn::GUI
{
/** A note as a screen reader tells it: "Row 3, G3, beat 2.2, length 1, velocity 74 %, chance 50 %". Rows count from the
    lowest key, lengths are columns.
*/
juce::String noteText (const Sequencer::TimedNote& note, const RowNames& names, const RollBeats& beats);

/** An empty place: "Row 3, G3, beat 2.2, empty". The start is part of the pattern. */
juce::String placeText (int row, double start, const RowNames& names, const RollBeats& beats);
} // namespace Zn::GUI
