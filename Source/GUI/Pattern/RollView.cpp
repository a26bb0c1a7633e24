#include "GUI/Pattern/RollView.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto unitsOfEditor = 1000.0;
constexpr auto rowsPerWheelUnit = 14.0f;   // a notch of most wheels is about a fifth of a unit
constexpr auto viewsPerWheelUnit = 0.5f;   // of the time that is seen
constexpr auto octavesPerWheelUnit = 1.5f; // a zoom by an octave is a factor of 2

float constantOf (std::string_view name)
{
    return AssetScheme::Base::get().constantOf (name);
}
} // namespace

double zoomFactor (const juce::MouseWheelDetails& wheel)
{
    return std::exp2 (double (wheel.deltaY * octavesPerWheelUnit));
}

RollView::RollView (AssetScheme::Canvas& canvasToUse)
    : canvas (canvasToUse), rowUnits (constantOf ("RowHeight"))
{}

void RollView::set (const RollGeometry& newGeometry)
{
    if (newGeometry == geometry)
        return;

    const auto isScrolled =
        newGeometry.topRow != geometry.topRow || newGeometry.rowHeight != geometry.rowHeight;

    if (newGeometry.size == geometry.size && isScrolled)
        middle = newGeometry.centreRow();

    geometry = newGeometry;
    callListeners();
}

void RollView::setGrid (int columns)
{
    auto changed = geometry;
    changed.grid = std::max (1, columns);
    set (changed);
}

double RollView::pixelsOfRow (float units) const
{
    return std::max (1.0, double (units) * canvas.getDimensions().get().height / unitsOfEditor);
}

void RollView::setSize (Dimensions<int> rollPixels)
{
    auto changed = geometry.resized (rollPixels, pixelsOfRow (rowUnits), middle);
    changed.noteInset = canvas.pixelsOf ("NoteInset");
    changed.edgeGrab = canvas.pixelsOf ("NoteEdgeGrab");
    set (changed);
}

void RollView::turnWheel (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel, float x)
{
    if (event.mods.isAltDown())
        return;

    if (event.mods.isCommandDown() || event.mods.isCtrlDown())
        return zoomTime (zoomFactor (wheel), double (x));

    const auto isSideways = event.mods.isShiftDown() || std::abs (wheel.deltaX) > std::abs (wheel.deltaY);

    if (! isSideways)
        return scrollRows (wheel.deltaY, wheel.isSmooth);

    const auto amount = std::abs (wheel.deltaX) > std::abs (wheel.deltaY) ? wheel.deltaX : wheel.deltaY;
    set (geometry.scrolled (-double (amount * viewsPerWheelUnit) * geometry.time.getLength(), 0.0));
}

void RollView::scrollRows (float amount, bool isSmooth)
{
    auto rows = double (amount * rowsPerWheelUnit);

    if (! isSmooth)
        rows = rows > 0.0 ? std::ceil (rows) : std::floor (rows);

    set (geometry.scrolled (0.0, rows));
}

void RollView::fit (juce::Range<int> rows)
{
    if (rows.getLength() > geometry.rowsVisible())
        zoomRows (geometry.rowsVisible() / rows.getLength(), 0.0);

    set (geometry.fitted (rows));
}

void RollView::zoomRows (double factor, double aroundY)
{
    rowUnits = std::clamp (static_cast<float> (double (rowUnits) * factor),
                           constantOf ("RowHeightMinimum"),
                           constantOf ("RowHeightMaximum"));
    set (geometry.withRowHeight (pixelsOfRow (rowUnits), aroundY));
}
} // namespace Zn::GUI
