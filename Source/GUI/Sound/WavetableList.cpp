#include "GUI/Sound/WavetableList.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Sound/CarryGesture.h"
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

juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

class WavetableList::Row : public BrowserRow
{
public:
    explicit Row (WavetableList& listToAsk) : list (listToAsk) {}

    TooltipText getTooltipText() const override
    {
        if (table < 0)
            return {};

        return { .title = list.named (table).name,
                 .value = list.named (table).category,
                 .help = "Drag it onto any oscillator to set it there.",
                 .shortcut = {} };
    }

    void resized() override { draw(); }

    void paint (juce::Graphics& g) override
    {
        if (table < 0)
            return;

        const auto& style = list.style;
        const auto isCurrent = table == list.current;
        const auto line = style.text.withRight (static_cast<float> (getWidth()) - style.row.getWidth()
                                                + style.text.getRight());

        paintGround (g, list.getCanvas(), style.box, colours, isCurrent);

        g.setColour (colour ("Sound"));
        g.strokePath (wave, juce::PathStrokeType (style.stroke, juce::PathStrokeType::curved));

        paintTextLine (g,
                       list.named (table).name,
                       isCurrent ? style.currentName : style.name,
                       line,
                       juce::Justification::centredLeft,
                       colour ("Text"));
    }

    void mouseDown (const juce::MouseEvent& event) override
    {
        if (carried = table; carried >= 0)
            gesture.press (event);
    }

    void mouseDrag (const juce::MouseEvent& event) override
    {
        if (gesture.move (event))
            gesture.showWhetherItDrops (list.callbacks.dragged (carried, event.getScreenPosition()));
    }

    void mouseUp (const juce::MouseEvent& event) override
    {
        const auto end = gesture.release (event);

        if (end == CarryGesture::End::drop)
            list.callbacks.dropped (carried, event.getScreenPosition());
        else if (end == CarryGesture::End::click)
            list.selectRow (getRow());
    }

    bool keyPressed (const juce::KeyPress& key) override
    {
        if (! gesture.giveUp (key))
            return false;

        list.callbacks.notDropped();
        return true;
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
    int table = -1, carried = -1;
    juce::Path wave;
    CarryGesture gesture { *this };
};

//======================================================================================================================
WavetableList::WavetableList (AssetScheme::Canvas& canvas,
                              const NamedTables& namesToShow,
                              Callbacks callbacksToUse)
    : BrowserList (canvas, "WavetableList", "Wavetables")
    , names (namesToShow)
    , callbacks (std::move (callbacksToUse))
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
    return table >= 0 ? named (table).name + ", " + named (table).category : juce::String();
}

std::unique_ptr<BrowserRow> WavetableList::makeRow()
{
    return std::make_unique<Row> (*this);
}
} // namespace Zn::GUI
