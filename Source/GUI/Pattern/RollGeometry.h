#pragma once

#include "Foundation/Dimensions.h"
#include "Sequencer/TimedNote.h"

#include <juce_graphics/juce_graphics.h>

#include <span>

namespace Zn::GUI
{
/** Where the drawing lies in the piano roll: a value that turns times and rows into pixels and back.

    Times are parts of the pattern, 0 to 1; rows count upwards, 0 to 127; pixels are the roll's own. Every edge is
    rounded by itself, so that neighbours meet. Scrolling and zooming give a new value that shows nothing beyond
    the pattern and the rows. Thread: any.
*/
struct RollGeometry
{
    enum class Part
    {
        nothing,
        body,
        end // where the hand takes a note to change its length
    };

    struct Hit
    {
        int note = -1; // index, -1 none
        Part part = Part::nothing;

        bool operator== (const Hit&) const = default;
    };

    static constexpr auto numRows = 128;
    static constexpr auto firstCentre = 66.0; // the lowest held key, row 64, a little below the middle

    int grid = 16;                         // columns of the pattern
    juce::Range<double> time { 0.0, 1.0 }; // what is seen of the pattern
    double topRow = firstCentre;           // upper edge of what is seen: row r lies between r and r + 1
    double rowHeight = 15.0;               // pixels
    Dimensions<int> size { .width = 1, .height = 1 }; // of the roll, pixels
    float noteInset = 1.0f;                           // between a note and its row's edges, pixels
    float edgeGrab = 12.0f; // at most so much of a note's end changes its length, pixels

    double columnLength() const noexcept { return 1.0 / grid; }
    double columnWidth() const noexcept { return columnLength() * pixelsPerTime(); }
    double pixelsPerTime() const noexcept { return size.width / time.getLength(); }
    double rowsVisible() const noexcept { return size.height / rowHeight; }
    double centreRow() const noexcept { return topRow - 0.5 * rowsVisible(); }

    /** Beyond the roll's edges too. */
    double timeAt (double x) const noexcept { return time.getStart() + x / pixelsPerTime(); }
    double xOf (double timeToFind) const noexcept { return (timeToFind - time.getStart()) * pixelsPerTime(); }

    /** The pixel that a line at a time takes. */
    int pixelOf (double timeToFind) const noexcept;

    /** The column that a time lies in, 0 to grid - 1. */
    int columnAt (double timeToFind) const noexcept;

    /** The row that a pixel lies in; may be one that does not exist. */
    int rowAt (double y) const noexcept;

    /** A pixel's row, or the nearest one that exists. */
    int nearestRowAt (double y) const noexcept;

    /** From the lower edge of a row to its upper one, across the roll. */
    juce::Rectangle<int> boundsOfRow (int row) const noexcept;

    /** A span of time in a row, without an inset. */
    juce::Rectangle<int> boundsOfCell (double start, double end, int row) const noexcept;

    /** What is painted of a note; as short as it may be, it can still be seen. */
    juce::Rectangle<float> boundsOf (const Sequencer::TimedNote& note) const noexcept;

    /** What lies under a point; of notes that lie over each other, the last one. */
    Hit hit (juce::Point<float> point, std::span<const Sequencer::TimedNote> notes) const noexcept;

    /** Another size and row height around a middle, in rows; a whole row is uppermost. */
    RollGeometry resized (Dimensions<int> newSize, double newRowHeight, double middle) const noexcept;

    /** Whether all of these rows are in sight; of none, yes. */
    bool shows (juce::Range<int> rows) const noexcept;

    /** These rows in the middle. */
    RollGeometry centredOn (juce::Range<int> rows) const noexcept;

    /** Whole pattern; rows stay unless some of these are out of sight. */
    RollGeometry fitted (juce::Range<int> rows) const noexcept;

    /** By parts of the pattern and by rows, upwards and rightwards. */
    RollGeometry scrolled (double byTime, double byRows) const noexcept;

    /** What lies under a pixel stays there. A factor above 1 shows less. */
    RollGeometry zoomedTime (double factor, double aroundX) const noexcept;
    RollGeometry withRowHeight (double newRowHeight, double aroundY) const noexcept;

    /** So far as needed to see a cell as a whole. */
    RollGeometry showing (double start, double end, int row) const noexcept;

    bool operator== (const RollGeometry&) const = default;

private:
    RollGeometry limited() const noexcept;
    int edgeOfRow (double row) const noexcept;
    double shortestTime() const noexcept;
};
} // namespace Zn::GUI
