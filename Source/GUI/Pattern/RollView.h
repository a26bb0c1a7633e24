#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Pattern/RollGeometry.h"

namespace Zn::GUI
{
/** What the roll, its ruler, its lane and its pitch map see of the drawing, and how a hand scrolls and zooms it. Edits,
    undo and other slots leave it alone, but for a slot whose notes would be out of sight. Tells when it has changed.
    Thread: message.
*/
class RollView : public Events::HasBroadcaster
{
public:
    explicit RollView (AssetScheme::Canvas& canvasToUse);

    const RollGeometry& get() const noexcept { return geometry; }
    void set (const RollGeometry& newGeometry);

    void setGrid (int columns);

    /** Follows the editor's size and fold: rows keep their height as a part of the editor. */
    void setSize (Dimensions<int> rollPixels);

    /** The whole pattern, whose notes lie in some rows; rows that are less high where there are too many to be seen. */
    void fit (juce::Range<int> rows);

    /** A turn of the wheel over the roll, or beside it at `x` of the roll. With Alt it does nothing. */
    void turnWheel (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel, float x);

    /** Above 1 shows less. */
    void zoomTime (double factor, double aroundX) { set (geometry.zoomedTime (factor, aroundX)); }

    /** Above 1 makes rows taller, within what the scheme allows. */
    void zoomRows (double factor, double aroundY);

    void centreOn (juce::Range<int> rows) { set (geometry.centredOn (rows)); }
    void showCell (double start, double end, int row) { set (geometry.showing (start, end, row)); }

private:
    void scrollRows (float amount, bool isSmooth);
    double pixelsOfRow (float units) const;

    AssetScheme::Canvas& canvas;
    RollGeometry geometry;
    double middle = RollGeometry::firstCentre; // of the rows, kept when the size changes
    float rowUnits = 0.0f;                     // thousandths of the editor's height
};

/** How much a turn of the wheel zooms. */
double zoomFactor (const juce::MouseWheelDetails& wheel);
} // namespace Zn::GUI
