#include "GUI/Browser/BrowserGroups.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/TextLine.h"

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

BrowserGroups::BrowserGroups (AssetScheme::Canvas& canvas,
                              const std::string& prefixToUse,
                              BrowserColours coloursToUse,
                              CallbackFunc chosenByHand)
    : Element (canvas, prefixToUse + "Categories")
    , prefix (prefixToUse)
    , colours (coloursToUse)
    , onChosen (std::move (chosenByHand))
{
    setTitle ("Categories");
    setOutlineThickness (0);
    setModel (this);
}

BrowserGroups::~BrowserGroups()
{
    setModel (nullptr);
}

void BrowserGroups::show (std::vector<Line> newLines)
{
    lines = std::move (newLines);

    if (std::ranges::find (lines, chosen, &Line::id) == lines.end())
        chosen = {};

    updateContent();
    markChosen();
    repaint();
}

void BrowserGroups::choose (const juce::String& id)
{
    chosen = id;
    markChosen();
}

void BrowserGroups::markChosen()
{
    const juce::ScopedValueSetter<bool> byItself (marksItself, true);

    for (auto row = 0; row < getNumRows(); ++row)
        if (lines[static_cast<std::size_t> (row)].id == chosen)
            selectRow (row);
}

void BrowserGroups::selectedRowsChanged (int row)
{
    if (marksItself || row < 0 || row >= getNumRows())
        return;

    chosen = lines[static_cast<std::size_t> (row)].id;
    onChosen();
}

juce::String BrowserGroups::getNameForRow (int row)
{
    if (row < 0 || row >= getNumRows())
        return {};

    const auto& line = lines[static_cast<std::size_t> (row)];
    return line.text + ", " + juce::String (line.count);
}

void BrowserGroups::schemeChanged()
{
    const auto& canvas = getCanvas();
    const auto origin = canvas.boundsOf (prefix + "Group").getPosition();
    const auto inLine = [&] (const char* part) {
        return (canvas.boundsOf (prefix + part) - origin).toFloat();
    };

    font = canvas.fontOf ("FontSmall");
    box = inLine ("GroupBox");
    textArea = inLine ("GroupText");
    countArea = inLine ("GroupCount");
    setRowHeight (std::max (1, canvas.boundsOf (prefix + "Group").getHeight()));
}

void BrowserGroups::paintListBoxItem (int row, juce::Graphics& g, int width, int height, bool isSelected)
{
    if (row < 0 || row >= getNumRows())
        return;

    const auto& line = lines[static_cast<std::size_t> (row)];
    const auto area = juce::Rectangle<int> (width, height).toFloat();
    paintLine (g, line, area, isSelected);

    if (line.endsBlock && row + 1 < getNumRows())
    {
        const auto stroke = std::max (1.0f, getCanvas().pixelsOf ("HairlineStroke"));
        auto hairline = area;
        g.setColour (colour ("ControlEdge"));
        g.fillRect (hairline.removeFromBottom (stroke).reduced (textArea.getX(), 0.0f));
    }
}

void BrowserGroups::paintLine (juce::Graphics& g,
                               const Line& line,
                               juce::Rectangle<float> area,
                               bool isChosen)
{
    const auto scrollBar = area.getWidth() - box.getWidth();

    if (isChosen)
    {
        const auto field = box.withWidth (area.getWidth());
        g.setColour (colour (colours.wash));
        g.fillRoundedRectangle (field, getCanvas().cornerOf ("ControlCorner", field));
    }

    auto text = textArea;

    if (line.hasStar)
    {
        const auto icon = getCanvas().pixelsOf ("IconSizeSmall");
        star.paint (g,
                    text.removeFromLeft (icon).withSizeKeepingCentre (icon, icon),
                    colour (colours.accent));
        text.removeFromLeft (getCanvas().pixelsOf ("CaptionGap"));
    }

    paintTextLine (g,
                   line.text,
                   font,
                   text,
                   juce::Justification::centredLeft,
                   colour (isChosen ? "Text" : "TextSecondary"));
    g.setColour (colour (isChosen ? "TextSecondary" : "TextQuiet"));
    g.drawText (juce::String (line.count),
                countArea.translated (scrollBar, 0.0f),
                juce::Justification::centredRight,
                false);
}
} // namespace Zn::GUI
