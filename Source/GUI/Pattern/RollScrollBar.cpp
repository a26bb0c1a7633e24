#include "GUI/Pattern/RollScrollBar.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
RollScrollBar::RollScrollBar (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "RollScrollBar")
    , context (contextToUse)
    , listener (contextToUse.view, [this] {
        if (shownThumb != thumb())
            repaint();
    })
{
    setRepaintsOnMouseActivity (false);
    setAccessible (false); // the roll is scrolled by moving through its notes
}

juce::Rectangle<float> RollScrollBar::thumb() const
{
    const auto& geometry = context.view.get();
    const auto perRow = double (getHeight()) / RollGeometry::numRows;
    const auto top = (RollGeometry::numRows - geometry.topRow) * perRow;
    const auto height = geometry.rowsVisible() * perRow;
    return juce::Rectangle<double> (0.0, top, double (getWidth()), height).toFloat();
}

void RollScrollBar::paint (juce::Graphics& g)
{
    shownThumb = thumb();
    g.setColour (AssetScheme::Base::get().colourOf (isMouseOverOrDragging() ? "TextDisabled" : "Choice"));
    g.fillRoundedRectangle (shownThumb, 0.5f * shownThumb.getWidth());
}

void RollScrollBar::mouseDown (const juce::MouseEvent& event)
{
    grabbedRow = context.view.get().topRow;
    grabbedY = double (event.position.y);
}

void RollScrollBar::mouseDrag (const juce::MouseEvent& event)
{
    const auto rows = (double (event.position.y) - grabbedY) * RollGeometry::numRows / getHeight();
    const auto& geometry = context.view.get();
    context.view.set (geometry.scrolled (0.0, grabbedRow - rows - geometry.topRow));
}

void RollScrollBar::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    context.view.turnWheel (event, wheel, 0.0f);
}
} // namespace Zn::GUI
