#include "GUI/Pattern/RollGeometry.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto narrowestNote = 3.0f;     // pixels
constexpr auto endOfNote = 0.25f;        // of its width
constexpr auto fewestPartsInView = 16.0; // zoomed in, a coarse grid shows more than a column
} // namespace

int RollGeometry::pixelOf (double timeToFind) const noexcept
{
    return juce::roundToInt (xOf (timeToFind));
}

int RollGeometry::columnAt (double timeToFind) const noexcept
{
    constexpr auto roundOff = 1.0e-9;
    return std::clamp (static_cast<int> (std::floor (timeToFind * grid + roundOff)), 0, grid - 1);
}

int RollGeometry::edgeOfRow (double row) const noexcept
{
    return juce::roundToInt ((topRow - row) * rowHeight);
}

int RollGeometry::rowAt (double y) const noexcept
{
    auto row = static_cast<int> (std::floor (topRow - y / rowHeight));

    while (y < edgeOfRow (row + 1.0)) // the edges are rounded
        ++row;

    while (y >= edgeOfRow (row))
        --row;

    return row;
}

int RollGeometry::nearestRowAt (double y) const noexcept
{
    return std::clamp (rowAt (y), 0, numRows - 1);
}

juce::Rectangle<int> RollGeometry::boundsOfRow (int row) const noexcept
{
    return juce::Rectangle<int>::leftTopRightBottom (0, edgeOfRow (row + 1.0), size.width, edgeOfRow (row));
}

juce::Rectangle<int> RollGeometry::boundsOfCell (double start, double end, int row) const noexcept
{
    const auto bounds = boundsOfRow (row);
    return juce::Rectangle<int>::leftTopRightBottom (pixelOf (start),
                                                     bounds.getY(),
                                                     pixelOf (end),
                                                     bounds.getBottom());
}

juce::Rectangle<float> RollGeometry::boundsOf (const Sequencer::TimedNote& note) const noexcept
{
    const auto cell = boundsOfCell (note.time.start, note.time.end(), note.event.noteNum).toFloat();
    const auto gap = 2.0f * noteInset; // behind a note, so that its end is seen where the next one begins
    const auto box = cell.reduced (0.0f, noteInset).withTrimmedLeft (noteInset);
    return box.withWidth (std::max (narrowestNote, box.getWidth() - gap));
}

RollGeometry::Hit RollGeometry::hit (juce::Point<float> point,
                                     std::span<const Sequencer::TimedNote> notes) const noexcept
{
    for (auto index = static_cast<int> (notes.size()) - 1; index >= 0; --index)
    {
        const auto& note = notes[static_cast<std::size_t> (index)];
        const auto box = boundsOf (note);

        if (point.x < box.getX() || point.x >= box.getRight() || rowAt (point.y) != note.event.noteNum)
            continue;

        const auto grab = std::min (endOfNote * box.getWidth(), edgeGrab);
        return { index, point.x >= box.getRight() - grab ? Part::end : Part::body };
    }

    return {};
}

RollGeometry
RollGeometry::resized (Dimensions<int> newSize, double newRowHeight, double middle) const noexcept
{
    auto result = *this;
    result.size = { .width = std::max (1, newSize.width), .height = std::max (1, newSize.height) };
    result.rowHeight = newRowHeight;
    result.topRow = std::floor (middle + 0.5 * result.rowsVisible() + 0.5);
    return result.limited();
}

bool RollGeometry::shows (juce::Range<int> rows) const noexcept
{
    return rows.isEmpty() || (rows.getEnd() <= topRow && rows.getStart() >= topRow - rowsVisible());
}

RollGeometry RollGeometry::centredOn (juce::Range<int> rows) const noexcept
{
    auto result = *this;
    result.topRow = std::ceil (0.5 * (rows.getStart() + rows.getEnd() + rowsVisible()));
    return result.limited();
}

RollGeometry RollGeometry::fitted (juce::Range<int> rows) const noexcept
{
    auto result = shows (rows) ? *this : centredOn (rows);
    result.time = { 0.0, 1.0 };
    return result;
}

RollGeometry RollGeometry::scrolled (double byTime, double byRows) const noexcept
{
    auto result = *this;
    result.time += byTime;
    result.topRow += byRows;
    return result.limited();
}

RollGeometry RollGeometry::zoomedTime (double factor, double aroundX) const noexcept
{
    const auto fixed = timeAt (aroundX);
    const auto length = std::clamp (time.getLength() / factor, shortestTime(), 1.0);
    const auto start = fixed - (fixed - time.getStart()) * length / time.getLength();

    auto result = *this;
    result.time = { start, start + length };
    return result.limited();
}

RollGeometry RollGeometry::withRowHeight (double newRowHeight, double aroundY) const noexcept
{
    const auto fixed = topRow - aroundY / rowHeight;

    auto result = *this;
    result.rowHeight = newRowHeight;
    result.topRow = fixed + aroundY / newRowHeight;
    return result.limited();
}

RollGeometry RollGeometry::showing (double start, double end, int row) const noexcept
{
    const auto farEnd = std::min (end, start + time.getLength()); // of a long cell, its start
    const auto above = row + 1.0 - topRow;
    const auto below = row - (topRow - std::floor (rowsVisible()));

    return scrolled (std::min (0.0, start - time.getStart()) + std::max (0.0, farEnd - time.getEnd()),
                     std::max (0.0, above) + std::min (0.0, below));
}

double RollGeometry::shortestTime() const noexcept
{
    const auto shortest = 1.0 / std::max (fewestPartsInView, double (grid));
    return std::min (shortest, time.getLength()); // what a finer grid has shown stays as it is
}

RollGeometry RollGeometry::limited() const noexcept
{
    auto result = *this;
    const auto length = std::min (time.getLength(), 1.0);
    const auto start = std::clamp (time.getStart(), 0.0, 1.0 - length);
    result.time = { start, start + length };
    result.topRow = std::clamp (topRow, std::min (rowsVisible(), double (numRows)), double (numRows));
    return result;
}
} // namespace Zn::GUI
