#pragma once

#include "GUI/Pattern/Drawing.h"

namespace Zn::GUI
{
/** Which notes of a drawing to select after others have changed it: while no note has come or gone they keep their
    places in the list; else those that are still there as they were.
*/
NoteSelection selectionAfterChange (const Drawing& before, const std::vector<Sequencer::TimedNote>& after);
} // namespace Zn::GUI
