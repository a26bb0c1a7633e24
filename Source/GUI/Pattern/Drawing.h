#pragma once

#include "GUI/Pattern/NoteSelection.h"
#include "Sequencer/PatternSlot.h"

#include <cmath>

namespace Zn::GUI
{
/** What a hand can change of a slot's pattern, as a value, with the notes that are selected. Thread: message. */
struct Drawing
{
    std::vector<Sequencer::TimedNote>
        notes; // starts and lengths as parts of the pattern, rows as note numbers
    NoteSelection selection {};
    int grid = 16; // columns
    bool multiply = false;
    Sequencer::Bars time {};
    double noteLength = 1.0; // of a new note, as a part of a column

    /** Nothing is selected. */
    static Drawing of (const Sequencer::PatternSlot& slot);

    void writeTo (Sequencer::PatternSlot& slot) const;

    /** Whether both are the same apart from what is selected. */
    bool playsAs (const Drawing& other) const noexcept;

    int numNotes() const noexcept { return static_cast<int> (notes.size()); }
    bool hasNote (int note) const noexcept { return note >= 0 && note < numNotes(); }

    Sequencer::TimedNote& note (int index) { return notes[static_cast<std::size_t> (index)]; }
    const Sequencer::TimedNote& note (int index) const { return notes[static_cast<std::size_t> (index)]; }
};

/** How an edit keeps to the columns. */
struct NoteGrid
{
    int columns = 16;
    bool snaps = true; // starts and lengths are whole columns

    double column() const noexcept { return 1.0 / columns; }

    /** A note may not be shorter. */
    double shortest() const noexcept { return column() / 16.0; }

    /** A note may not begin later. */
    double lastStart() const noexcept { return 1.0 - shortest(); }

    /** The start of the column that a time lies in. */
    double columnStart (double time) const noexcept;

    /** The nearest line between two columns. */
    double nearestLine (double time) const noexcept { return std::round (time * columns) / columns; }

    /** Exactly on a line when it is as good as there: sums of columns are off by rounding. */
    double tidied (double time) const noexcept;

    /** Inside the pattern and not too short. */
    Ranges::Span limited (Ranges::Span span) const noexcept;
};
} // namespace Zn::GUI
