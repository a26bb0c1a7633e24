#pragma once

#include "GUI/Pattern/Drawing.h"

namespace Zn::GUI
{
/** Which notes to select in place of those that were selected in a drawing, after others have changed it: those that are
    still there as they were.
*/
NoteSelection selectionStillIn (const std::vector<Sequencer::TimedNote>& after, const Drawing& before);
} // namespace Zn::GUI
