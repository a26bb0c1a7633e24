#include "GUI/Sound/WavetableList.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Sound/Picture.h"
#include "GUI/Sound/WaveShape.h"
#include "GUI/Widgets/TextLine.h"
#include "Synth/WavetableSynth/SampleList.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
using Audio::WavetableSynth::SampleList;

constexpr BrowserColours colours { .accent = "Sound", .wash = "SoundDeep" };

juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

std::vector<NamedTable> NamedTable::all()
{
    constexpr auto separator = " - ";
    std::vector<NamedTable> result;

    for (const auto& name : SampleList::get().getNames())
        if (name.contains (separator))
            result.push_back ({ .name = name.fromFirstOccurrenceOf (separator, false, false),
                                .category = name.upToFirstOccurrenceOf (separator, false, false) });
        else
            result.push_back ({ .name = name, .category = "Others" });

    return result;
}

//======================================================================================================================
class WavetableList::Row : public BrowserRow
{
public:
    explicit Row (WavetableList& listToAsk) : list (listToAsk)
    {
        setMouseCursor (juce::MouseCursor::PointingHandCursor);
    }

    TooltipText getTooltipText() const override
    {
        if (table < 0)
            return {};

        const auto& named = list.names[static_cast<std::size_t> (table)];
        return { .title = named.name,
                 .value = named.category,
                 .help = "Drag it onto any oscillator to set it there.",
                 .shortcut = {} };
    }

    void resized() override { draw(); }

    void paint (juce::Graphics& g) override
    {
        if (table < 0)
            return;

        const auto& style = list.style;
        const auto& named = list.names[static_cast<std::size_t> (table)];
        const auto isCurrent = table == list.current;
        const auto line = style.text.withRight (static_cast<float> (getWidth()) - style.row.getWidth()
                                                + style.text.getRight());

        paintGround (g, list.getCanvas(), style.box, colours, isCurrent);

        g.setColour (colour ("Sound"));
        g.strokePath (wave, juce::PathStrokeType (style.stroke, juce::PathStrokeType::curved));

        paintTextLine (g,
                       named.name,
                       isCurrent ? style.currentName : style.name,
                       line,
                       juce::Justification::centredLeft,
                       colour ("Text"));
    }

    void mouseDrag (const juce::MouseEvent& event) override
    {
        if (table < 0 || event.mods.isPopupMenu() || ! event.mouseWasDraggedSinceMouseDown())
            return;

        setMouseCursor (juce::MouseCursor::CopyingCursor);
        list.callbacks.dragged (table, event.getScreenPosition());
    }

    void mouseUp (const juce::MouseEvent& event) override
    {
        setMouseCursor (juce::MouseCursor::PointingHandCursor);

        if (table < 0 || event.mods.isPopupMenu())
            return;

        if (event.mouseWasDraggedSinceMouseDown())
            list.callbacks.dropped (table, event.getScreenPosition());
        else
            list.selectRow (getRow());
    }

    void mouseDoubleClick (const juce::MouseEvent&) override { list.activate(); }

    void mouseWheelMove (const juce::MouseEvent&, const juce::MouseWheelDetails& wheel) override
    {
        list.turn (wheel);
    }

private:
    void shownRowChanged() override
    {
        if (const auto before = std::exchange (table, list.tableAt (getRow())); table != before)
            draw();
    }

    void draw()
    {
        wave.clear();

        if (table < 0 || getWidth() == 0)
            return;

        const auto area = list.style.picture.reduced (list.style.stroke);
        auto shape =
            waveShape (SampleList::get().getTable (table), std::max (1, juce::roundToInt (area.getWidth())));
        fitWave (shape, area);
        wave = pathThrough (shape);
    }

    WavetableList& list;
    int table = -1;
    juce::Path wave;
};

//======================================================================================================================
WavetableList::WavetableList (AssetScheme::Canvas& canvas, Callbacks callbacksToUse)
    : BrowserList (canvas, "WavetableList", "Wavetables"), callbacks (std::move (callbacksToUse))
{
    setModel (this);
}

WavetableList::~WavetableList()
{
    setModel (nullptr);
}

void WavetableList::schemeChanged()
{
    const auto& canvas = getCanvas();
    const auto inRow = [&canvas] (std::string_view element) {
        return (canvas.boundsOf (element) - canvas.boundsOf ("WavetableRow").getPosition()).toFloat();
    };

    style = { .row = inRow ("WavetableRow"),
              .box = inRow ("WavetableRowBox"),
              .picture = inRow ("WavetableRowPicture"),
              .text = inRow ("WavetableRowName"),
              .name = canvas.fontOf ("FontBody"),
              .currentName = canvas.fontOf ("FontBody", AssetScheme::Cut::bold),
              .stroke = canvas.pixelsOf ("ThinnerStroke") };
    layOutRows (style.row.getHeight());
}

void WavetableList::show (std::vector<int> newTables, const juce::String& newHint)
{
    tables = std::move (newTables);
    setHint (newHint);

    const juce::ScopedValueSetter<bool> byItself (marksItself, true);
    updateContent();
    markCurrent();
}

void WavetableList::setCurrent (int table)
{
    if (std::exchange (current, table) == table)
        return;

    repaint();
    markCurrent();
}

void WavetableList::markCurrent()
{
    const juce::ScopedValueSetter<bool> byItself (marksItself, true);

    if (const auto found = std::ranges::find (tables, current); found != tables.end())
        selectRow (static_cast<int> (found - tables.begin()));
    else
        deselectAllRows();
}

void WavetableList::selectedRowsChanged (int row)
{
    if (const auto table = tableAt (row); table >= 0 && ! marksItself)
        callbacks.marked (table);
}

bool WavetableList::markAt (juce::Point<int> onScreen)
{
    const auto place = getLocalPoint (nullptr, onScreen);
    const auto row = getRowContainingPosition (place.x, place.y);

    if (row >= 0)
        selectRow (row);

    return row >= 0;
}

/** From line to line, so that each is heard. */
void WavetableList::turn (const juce::MouseWheelDetails& wheel)
{
    constexpr auto smoothStep = 0.1f; // of a wheel that turns without notches, for one line

    if (const auto steps = wheelSteps.upIn (wheel, smoothStep); steps != 0)
        moveSelection (-steps);
}

int WavetableList::tableAt (int row) const
{
    return juce::isPositiveAndBelow (row, static_cast<int> (tables.size()))
               ? tables[static_cast<std::size_t> (row)]
               : -1;
}

juce::String WavetableList::getNameForRow (int row)
{
    const auto table = tableAt (row);

    if (table < 0)
        return {};

    const auto& named = names[static_cast<std::size_t> (table)];
    return named.name + ", " + named.category;
}

std::unique_ptr<BrowserRow> WavetableList::makeRow()
{
    return std::make_unique<Row> (*this);
}
} // namespace Zn::GUI
