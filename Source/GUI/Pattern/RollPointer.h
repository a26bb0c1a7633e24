#pragma once

#include "Midi/RowToPitchTable.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
/** A place in the drawing, also between its cells and beyond its edges. */
struct RollPoint
{
    double time = 0.0; // part of the pattern, 0 to 1
    double row = 0.0;  // upwards; row r lies from r to r + 1

    /** The row that it lies in, or the nearest one that exists. */
    int nearestRow() const noexcept { return static_cast<int> (std::clamp (std::floor (row), 0.0, 127.0)); }

    bool operator== (const RollPoint&) const = default;
};

/** A column of one row; by default where the lowest key begins. */
struct RollCell
{
    int column = 0, row = Midi::RowToPitchTable::rowOfLowestNote;

    bool operator== (const RollCell&) const = default;
};

/** A rectangle of the drawing by two of its corners. */
struct RollArea
{
    RollPoint from, to;

    bool operator== (const RollArea&) const = default;
};

/** What the pointer is at while it moves over the roll: tools know of no pixels but those it has moved. */
struct RollPointer
{
    RollPoint at;
    int note = -1;               // the one under the pointer, -1 none
    bool isAtEnd = false;        // in the part of the note that changes its length
    juce::Point<float> moved {}; // pixels since the button was pressed, down is positive
    juce::ModifierKeys modifiers {};
    int numClicks = 1; // 2: the second press of a double click
};

/** What the pointer looks like. */
enum class RollCursor
{
    arrow,
    pencil,
    cross,    // draws a lasso
    hand,     // moves
    sideways, // lengthens
    upDown    // changes a value
};

/** The name and value to show beside the pointer; nothing while the name is empty. */
struct RollReadout
{
    juce::String name, value;

    bool operator== (const RollReadout&) const = default;
};
} // namespace Zn::GUI
