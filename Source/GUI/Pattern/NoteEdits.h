#pragma once

#include "GUI/Pattern/Drawing.h"
#include "GUI/Pattern/NoteQueries.h"
#include "GUI/Pattern/NoteValue.h"
#include "GUI/Pattern/RollPointer.h"

#include <functional>

/** What tools, keys and menus do to the notes of a drawing. Whatever comes out of them lies in rows 0 to 127, begins and
    ends inside the pattern and is a sixteenth of a column long at least. Thread: message.
*/
namespace Zn::GUI::NoteEdits
{
constexpr auto numRows = 128;

/** What a brush draws into the column of a point: the length of new notes, or from the very point without snapping. */
Sequencer::TimedNote newNote (const Drawing& drawing, const NoteGrid& grid, RollPoint at);

/** Its place in the list; -1 when the drawing is full. */
int add (Drawing& drawing, const Sequencer::TimedNote& note);

void erase (Drawing& drawing, const NoteSelection& notes);
inline void eraseSelected (Drawing& drawing)
{
    erase (drawing, NoteSelection (drawing.selection));
}

/** So far that the note in hand lands on a line if the grid snaps, the first one when there is none in hand; less where
    one of them would leave the pattern. The notes keep their places to each other.
*/
void moveSelected (Drawing& drawing, const NoteGrid& grid, int inHand, double byTime, int byRows);

/** By as much as makes the note in hand whole columns if the grid snaps; when there is none in hand the longest one, by
    whole columns from line to line.
*/
void lengthenSelected (Drawing& drawing, const NoteGrid& grid, int inHand, double byTime);

/** Makes one note end in the column of a time, or there. */
void lengthenTo (Drawing& drawing, const NoteGrid& grid, int note, double time);

/** All selected notes as a part of a column. */
void setLengthOfSelected (Drawing& drawing, const NoteGrid& grid, double columns);

/** Adds copies in the same places and selects them. */
void duplicateInPlace (Drawing& drawing);

/** Adds copies behind the last of the selected notes, as far as there is room, and selects them. */
void duplicateBehind (Drawing& drawing, const NoteGrid& grid);

using EventChange = std::function<void (Sequencer::NoteEvent&)>;
void changeEvents (Drawing& drawing, const NoteSelection& notes, const EventChange& change);

/** All off when all were on, else on. */
void toggleEnabled (Drawing& drawing, const NoteSelection& notes);

} // namespace Zn::GUI::NoteEdits
