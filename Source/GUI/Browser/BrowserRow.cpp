#include "GUI/Browser/BrowserRow.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

BrowserRow::BrowserRow()
{
    setAccessible (false); // the line of the list is what is read out
    setRepaintsOnMouseActivity (false);
}

void BrowserRow::show (int rowToShow, bool shouldBeSelected)
{
    row = rowToShow;
    isSelected = shouldBeSelected;
    shownRowChanged();
    repaint();
}

void BrowserRow::paintGround (juce::Graphics& g,
                              const AssetScheme::Canvas& canvas,
                              juce::Rectangle<float> box,
                              BrowserColours colours,
                              bool isCurrent) const
{
    const auto field = box.withWidth (static_cast<float> (getWidth()));
    const auto corner = canvas.cornerOf ("PreviewBoxCorner", field);

    if (isCurrent || isSelected || isMouseOver (true))
    {
        g.setColour (colour (isCurrent ? colours.wash : "PopupHover"));
        g.fillRoundedRectangle (field, corner);
    }

    if (isSelected)
    {
        const auto stroke = std::max (1.0f, canvas.pixelsOf ("HairlineStroke"));
        g.setColour (colour (isCurrent ? colours.accent : "TextDisabled"));
        g.drawRoundedRectangle (field.reduced (stroke / 2.0f), corner, stroke);
    }
}
} // namespace Zn::GUI
