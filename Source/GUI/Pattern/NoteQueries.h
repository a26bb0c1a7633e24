#pragma once

#include "GUI/Pattern/Drawing.h"
#include "GUI/Pattern/RollPointer.h"

#include <span>

/** Which notes of a drawing somebody means. Thread: message. */
namespace Zn::GUI::NoteQueries
{
/** The selection if the note is part of it, else the note alone. */
NoteSelection selectionOr (const Drawing& drawing, int note);

NoteSelection notesInRow (const Drawing& drawing, int row);

/** From the lowest row with a note to the highest, of those that there are. */
juce::Range<int> rowsOf (std::span<const Sequencer::TimedNote> notes);

/** What a rectangle touches. */
NoteSelection notesIn (const Drawing& drawing, const RollArea& area);

/** What the pointer passes on its way from one point to another. */
NoteSelection notesBetween (const Drawing& drawing, RollPoint from, RollPoint to);

/** The note that follows in time, rows upwards in a chord; the first one after the last. -1 when there are none. */
int nextNote (const Drawing& drawing, int note, bool backwards);
} // namespace Zn::GUI::NoteQueries
