#pragma once

#include "GUI/Pattern/Drawing.h"

/** What changes a drawing as a whole; notes that are selected stay so. Thread: message. */
namespace Zn::GUI::WholePattern
{
/** Twice as long, with the same notes in both halves. Columns keep their length as long as there may be more of them.
    Does nothing when there would be too many notes.
*/
void repeatTwice (Drawing& drawing);

/** Only the first half is left: the way back from repeatTwice. */
void halve (Drawing& drawing);

/** What leaves the pattern on one side comes in on the other; a note is cut off where it would be longer than what is left
    of the pattern.
*/
void shift (Drawing& drawing, int columns);

/** The last column first; notes keep their place in their columns. */
void reverse (Drawing& drawing);

/** The highest row becomes the lowest. */
void invertRows (Drawing& drawing);

void scaleVelocities (Drawing& drawing, double factor);

void clear (Drawing& drawing);
} // namespace Zn::GUI::WholePattern
