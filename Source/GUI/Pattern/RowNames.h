#pragma once

#include "Midi/RowToPitchTable.h"

#include <juce_core/juce_core.h>

#include <array>

namespace Zn::GUI
{
/** What is told of one row of the roll beside it. */
struct RowName
{
    juce::String text;
    bool isLowest = false; // the lowest key of a cycle
    bool isHeld = false;   // one of the keys that are held, in its own octave
    bool isMoved = false;  // another octave than its own: the octave range moved it

    bool operator== (const RowName&) const = default;
};

/** The names of all rows: pitches while keys are held, else places in a chord. A value. */
struct RowNames
{
    std::array<RowName, Midi::RowToPitchTable::numRows> rows;
    Midi::NoteList heldKeys; // ascending

    /** `middleC` is the octave that note 60 stands in. */
    static RowNames from (const Midi::RowToPitchTable& table, int middleC);

    const RowName& of (int row) const { return rows[static_cast<std::size_t> (row)]; }

    /** Whether a row is tinted: without keys, that of the lowest one will be. */
    bool isTinted (int row) const { return of (row).isLowest; }

    bool operator== (const RowNames&) const = default;
};
} // namespace Zn::GUI
