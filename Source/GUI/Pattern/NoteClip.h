#pragma once

#include "GUI/Pattern/Drawing.h"

namespace Zn::GUI
{
/** Notes on their way from one drawing to another by the clipboard. Their times are columns, so that they sound alike in a
    drawing with another number of them. Thread: message.
*/
class NoteClip
{
public:
    /** Puts the selected notes on the clipboard; none leave it alone. */
    static void copySelected (const Drawing& drawing);

    static bool canPaste();

    /** Adds what is on the clipboard and selects it. The first note begins at a time, in its column if the grid snaps; its
        row is the one that is given, if any. Notes move as one as far as needed to lie in the pattern; what it has no
        room for is left out.
    */
    static void paste (Drawing& drawing, const NoteGrid& grid, double atTime, int row = -1);

    void reflect (Reflector& r);

private:
    std::vector<Sequencer::TimedNote> notes; // from the start of the column in which the first begins
};
} // namespace Zn::GUI
