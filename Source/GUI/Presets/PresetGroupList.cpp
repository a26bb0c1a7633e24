#include "GUI/Presets/PresetGroupList.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
constexpr auto lastFixedLine = 2; // a hairline parts the groups that are always there from the folders

juce::String textOf (const PresetGroup& group)
{
    switch (group.kind)
    {
    case PresetGroup::Kind::all:
        return "All";
    case PresetGroup::Kind::favourites:
        return "Favourites";
    case PresetGroup::Kind::own:
        return "Mine";
    case PresetGroup::Kind::category:
        break;
    }

    return group.category;
}

juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

PresetGroupList::PresetGroupList (AssetScheme::Canvas& canvas,
                                  const PresetKind& kindToShow,
                                  CallbackFunc chosenByHand)
    : Element (canvas, "PresetCategories")
    , accent (kindToShow.accent)
    , wash (kindToShow.wash)
    , onChosen (std::move (chosenByHand))
{
    setTitle ("Categories");
    setOutlineThickness (0);
    setModel (this);
}

PresetGroupList::~PresetGroupList()
{
    setModel (nullptr);
}

void PresetGroupList::show (const PresetCatalogue& catalogue, const juce::String& words)
{
    lines.clear();

    for (const auto& group : catalogue.getGroups())
        lines.push_back ({ group, textOf (group), catalogue.count (group, words) });

    if (std::none_of (lines.begin(), lines.end(), [this] (const auto& line) { return line.group == chosen; }))
        chosen = {};

    updateContent();
    markChosen();
    repaint();
}

void PresetGroupList::choose (const PresetGroup& group)
{
    chosen = group;
    markChosen();
}

void PresetGroupList::markChosen()
{
    const juce::ScopedValueSetter<bool> byItself (marksItself, true);

    for (auto row = 0; row < getNumRows(); ++row)
        if (lines[static_cast<std::size_t> (row)].group == chosen)
            selectRow (row);
}

void PresetGroupList::selectedRowsChanged (int row)
{
    if (marksItself || row < 0 || row >= getNumRows())
        return;

    chosen = lines[static_cast<std::size_t> (row)].group;
    onChosen();
}

juce::String PresetGroupList::getNameForRow (int row)
{
    if (row < 0 || row >= getNumRows())
        return {};

    const auto& line = lines[static_cast<std::size_t> (row)];
    return line.text + ", " + juce::String (line.count);
}

void PresetGroupList::schemeChanged()
{
    const auto& canvas = getCanvas();
    const auto origin = canvas.boundsOf ("PresetGroup").getPosition();
    const auto inLine = [&] (std::string_view element) {
        return (canvas.boundsOf (element) - origin).toFloat();
    };

    font = canvas.fontOf ("FontSmall");
    box = inLine ("PresetGroupBox");
    textArea = inLine ("PresetGroupText");
    countArea = inLine ("PresetGroupCount");
    setRowHeight (std::max (1, canvas.boundsOf ("PresetGroup").getHeight()));
}

void PresetGroupList::paintListBoxItem (int row, juce::Graphics& g, int width, int height, bool isSelected)
{
    if (row < 0 || row >= getNumRows())
        return;

    const auto area = juce::Rectangle<int> (width, height).toFloat();
    paintLine (g, lines[static_cast<std::size_t> (row)], area, isSelected);

    if (row == lastFixedLine && getNumRows() > lastFixedLine + 1)
    {
        const auto stroke = std::max (1.0f, getCanvas().pixelsOf ("HairlineStroke"));
        auto line = area;
        g.setColour (colour ("ControlEdge"));
        g.fillRect (line.removeFromBottom (stroke).reduced (textArea.getX(), 0.0f));
    }
}

void PresetGroupList::paintLine (juce::Graphics& g,
                                 const Line& line,
                                 juce::Rectangle<float> area,
                                 bool isChosen)
{
    constexpr auto narrowestSqueeze = 0.85f; // of a text's width, before it is cut
    const auto scrollBar = area.getWidth() - box.getWidth();

    if (isChosen)
    {
        const auto field = box.withWidth (area.getWidth());
        g.setColour (colour (wash));
        g.fillRoundedRectangle (field, getCanvas().cornerOf ("ControlCorner", field));
    }

    auto text = textArea;

    if (line.group.kind == PresetGroup::Kind::favourites)
    {
        const auto icon = getCanvas().pixelsOf ("IconSizeSmall");
        star.paint (g, text.removeFromLeft (icon).withSizeKeepingCentre (icon, icon), colour (accent));
        text.removeFromLeft (getCanvas().pixelsOf ("CaptionGap"));
    }

    g.setFont (font);
    g.setColour (colour (isChosen ? "Text" : "TextSecondary"));
    g.drawFittedText (line.text,
                      text.getSmallestIntegerContainer(),
                      juce::Justification::centredLeft,
                      1,
                      narrowestSqueeze);
    g.setColour (colour (isChosen ? "TextSecondary" : "TextQuiet"));
    g.drawText (juce::String (line.count),
                countArea.translated (scrollBar, 0.0f),
                juce::Justification::centredRight,
                false);
}
} // namespace Zn::GUI
