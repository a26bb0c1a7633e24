#include "GUI/Pattern/RollPicture.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Pattern/ScaledImage.h"

namespace Zn::GUI
{
namespace
{
constexpr auto rootRow = 64; // the lowest held key
} // namespace

void RollPicture::reload()
{
    painter.load (canvas);
    gridImage = wholeImage = {};
}

juce::Rectangle<int> RollPicture::bounds() const
{
    return { grid.geometry.size.width, grid.geometry.size.height };
}

juce::RectangleList<int> RollPicture::show (const GridLook& newGrid, std::vector<NoteLook> newNotes)
{
    if (newGrid != grid || gridImage.isNull())
    {
        const auto hadScale = scale;
        grid = newGrid;
        notes = std::move (newNotes);
        painter.setRowHeight (static_cast<float> (grid.geometry.rowHeight));

        if (hadScale > 0.0f)
            makeImages (hadScale);

        return bounds();
    }

    const auto changes = changesTo (newNotes);
    notes = std::move (newNotes);

    if (! changes.isEmpty())
        paintNotes (changes);

    return changes;
}

juce::RectangleList<int> RollPicture::changesTo (const std::vector<NoteLook>& newNotes) const
{
    const auto shorter = std::min (notes.size(), newNotes.size());
    std::size_t first = 0, last = 0; // equal ones at both ends

    while (first < shorter && notes[first] == newNotes[first])
        ++first;

    while (last < shorter - first && notes[notes.size() - 1 - last] == newNotes[newNotes.size() - 1 - last])
        ++last;

    constexpr auto tooMany = std::size_t { 100 }; // to tell their rectangles from each other

    if (std::max (notes.size(), newNotes.size()) - first - last > tooMany)
        return bounds();

    juce::RectangleList<int> changes;

    const auto addAll = [&] (const std::vector<NoteLook>& looks, const std::vector<NoteLook>& others) {
        for (auto index = first; index < looks.size() - last; ++index)
            if (looks.size() != others.size() || looks[index] != others[index])
                changes.add (painter.areaOf (looks[index]).getIntersection (bounds()));
    };

    addAll (notes, newNotes);
    addAll (newNotes, notes);
    return changes;
}

void RollPicture::makeImages (float newScale)
{
    scale = newScale;
    gridImage = imageAtScale (bounds(), scale);
    wholeImage = imageAtScale (bounds(), scale);

    juce::Graphics g (gridImage);
    g.addTransform (juce::AffineTransform::scale (scale));
    paintGrid (g);
    ++numGridPaints;

    paintNotes (bounds());
}

void RollPicture::paint (juce::Graphics& g)
{
    const auto screenScale = g.getInternalContext().getPhysicalPixelScaleFactor();

    if (gridImage.isNull() || screenScale != scale)
        makeImages (screenScale);

    drawAtScale (g, wholeImage, scale);
}

void RollPicture::paintNotes (const juce::RectangleList<int>& areas)
{
    juce::Graphics g (wholeImage);
    g.addTransform (juce::AffineTransform::scale (scale));
    g.reduceClipRegion (areas);
    drawAtScale (g, gridImage, scale);

    const auto paintAll = [&] (bool selectedOnes) { // which lie above the others
        for (const auto& note : notes)
            if (note.isSelected == selectedOnes && areas.intersectsRectangle (painter.areaOf (note)))
                painter.paint (g, note);
    };

    paintAll (false);
    paintAll (true);
    ++numNotePaints;
}

void RollPicture::paintGrid (juce::Graphics& g) const
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Roll"));
    paintRows (g);
    paintColumns (g);
}

void RollPicture::paintRows (juce::Graphics& g) const
{
    const auto& scheme = AssetScheme::Base::get();
    const auto& geometry = grid.geometry;
    const auto line = juce::roundToInt (std::max (1.0f, canvas.pixelsOf ("HairlineStroke")));

    for (auto row = geometry.rowAt (geometry.size.height); row <= geometry.rowAt (0.0); ++row)
    {
        const auto area = geometry.boundsOfRow (row);
        const auto exists = row >= 0 && row < RollGeometry::numRows;

        if (! exists || grid.tintedRows[static_cast<std::size_t> (row)])
        {
            g.setColour (scheme.colourOf (exists ? "RollRootRow" : "RollOutside"));
            g.fillRect (area);
        }

        g.setColour (scheme.colourOf ("RowLine"));
        g.fillRect (area.withY (area.getBottom()).withHeight (line));
    }
}

void RollPicture::paintColumns (juce::Graphics& g) const
{
    const auto& scheme = AssetScheme::Base::get();
    const auto& geometry = grid.geometry;
    const auto& beats = grid.beats;
    const auto least = double (scheme.constantOf ("ColumnWidthMinimum"));
    const auto line = juce::roundToInt (std::max (1.0f, canvas.pixelsOf ("HairlineStroke")));

    const auto paintLines = [&] (double perPattern, int stride, const auto& colourOfLine) {
        const auto first = static_cast<int> (geometry.time.getStart() * perPattern) / stride * stride;

        for (auto index = first; index <= geometry.time.getEnd() * perPattern; index += stride)
        {
            g.setColour (colourOfLine (index));
            g.fillRect (geometry.pixelOf (index / perPattern), 0, line, geometry.size.height);
        }
    };

    const auto step = scheme.colourOf ("GridStep"), beat = scheme.colourOf ("GridBeat"),
               bar = scheme.colourOf ("GridBar");

    paintLines (geometry.grid, beats.strideFor (geometry.columnWidth(), least), [&] (int) { return step; });
    paintLines (beats.quarters,
                beats.strideFor (geometry.pixelsPerTime() / beats.quarters, least),
                [&] (int index) { return index > 0 && beats.isBar (index) ? bar : beat; });

    g.setColour (bar);
    g.fillRect (geometry.boundsOfRow (rootRow - 1).withHeight (line));
}
} // namespace Zn::GUI
