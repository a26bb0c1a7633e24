#pragma once

#include "GUI/Pattern/NotePainter.h"
#include "GUI/Pattern/RollBeats.h"
#include "GUI/Pattern/RollGeometry.h"

#include <bitset>
#include <vector>

namespace Zn::GUI
{
/** What lies behind the notes. */
struct GridLook
{
    RollGeometry geometry;
    RollBeats beats;
    std::bitset<RollGeometry::numRows> tintedRows {};

    bool operator== (const GridLook&) const = default;
};

/** The grid and the notes, each painted into an image of the screen's own pixels, so that the roll is copied to the
    screen and not painted as the play head moves over it. Notes are painted anew where they have changed. Thread: message.
*/
class RollPicture
{
public:
    explicit RollPicture (const AssetScheme::Canvas& canvasToUse) : canvas (canvasToUse) {}

    /** The scheme or the editor's size has changed: all is painted anew with the next change or paint. */
    void reload();

    /** Tells what of the roll is to be repainted. */
    juce::RectangleList<int> show (const GridLook& newGrid, std::vector<NoteLook> newNotes);

    /** Makes the images at first, and on a screen with other pixels. */
    void paint (juce::Graphics& g);

    const std::vector<NoteLook>& getNotes() const noexcept { return notes; }
    const NotePainter& getPainter() const noexcept { return painter; }

    // How often each has been painted, for tests.
    int getNumGridPaints() const noexcept { return numGridPaints; }
    int getNumNotePaints() const noexcept { return numNotePaints; }

private:
    juce::RectangleList<int> changesTo (const std::vector<NoteLook>& newNotes) const;
    void makeImages (float newScale);
    void paintGrid (juce::Graphics& g) const;
    void paintRows (juce::Graphics& g) const;
    void paintColumns (juce::Graphics& g) const;
    void paintNotes (const juce::RectangleList<int>& areas);
    juce::Rectangle<int> bounds() const;

    const AssetScheme::Canvas& canvas;
    NotePainter painter;
    GridLook grid;
    std::vector<NoteLook> notes;
    juce::Image gridImage, wholeImage; // the second one is the first with the notes upon it
    float scale = 0.0f;                // physical pixels in one of ours; 0: no images yet
    int numGridPaints = 0, numNotePaints = 0;
};
} // namespace Zn::GUI
