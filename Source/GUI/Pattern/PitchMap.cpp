#include "GUI/Pattern/PitchMap.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Pattern/NoteQueries.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto padOfLabel = 0.65f; // of a label's height: what is left free beside it

juce::Colour colourOf (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

PitchMap::PitchMap (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "PitchMap")
    , context (contextToUse)
    , picture ([this] (juce::Graphics& g) { paintRows (g); })
    , namesListener (contextToUse.rowNames, [this] { refresh(); })
    , viewListener (contextToUse.view, [this] { refresh(); })
{
    setOpaque (true);
    setMouseCursor (juce::MouseCursor::UpDownResizeCursor);
    setTitle (text.title);
    setDescription (text.help);
}

TooltipText PitchMap::getTooltipText() const
{
    return { .title = text.title, .value = {}, .help = text.help, .shortcut = text.shortcut };
}

void PitchMap::refresh()
{
    picture.invalidate();
    repaint();
}

void PitchMap::schemeChanged()
{
    regular = getCanvas().fontOf ("FontSmall");
    bold = getCanvas().fontOf ("FontSmall", AssetScheme::Cut::bold);
    italic = getCanvas().fontOf ("FontSmall", AssetScheme::Cut::italic);
    refresh();
}

void PitchMap::paintRows (juce::Graphics& g) const
{
    g.fillAll (colourOf ("Window"));

    const auto& geometry = context.view.get();

    for (auto row = geometry.nearestRowAt (getHeight() - 1); row <= geometry.nearestRowAt (0.0); ++row)
        paintRow (g, row);

    const auto line = std::max (1, juce::roundToInt (context.editor.canvas.pixelsOf ("HairlineStroke")));
    g.setColour (colourOf ("Hairline"));
    g.fillRect (getLocalBounds().removeFromRight (line));
}

void PitchMap::paintRow (juce::Graphics& g, int row) const
{
    const auto& names = context.rowNames.get();
    const auto& name = names.of (row);
    const auto area = context.view.get().boundsOfRow (row).withWidth (getWidth()).toFloat();

    if (names.isTinted (row))
    {
        g.setColour (colourOf ("RollRootRow"));
        g.fillRect (area);
    }

    if (name.isHeld)
    {
        const auto handle = context.editor.canvas.pixelsOf ("LaneHandle");
        const auto bar =
            juce::Rectangle<float> (std::round (0.73f * handle), 0.0f, std::round (0.6f * handle), 0.0f)
                .withY (area.getY() + 0.14f * area.getHeight())
                .withBottom (area.getBottom() - 0.14f * area.getHeight());
        g.setColour (colourOf ("Midi"));
        g.fillRoundedRectangle (bar, 0.5f * bar.getWidth());
    }

    const auto isQuiet = names.heldKeys.isEmpty() ? ! name.isLowest : name.isMoved;
    const auto isStrong = name.isLowest || name.isHeld;
    g.setColour (colourOf (isQuiet ? "TextQuiet" : isStrong ? "Text" : "TextSecondary"));
    g.setFont (name.isMoved ? italic : name.isLowest ? bold : regular);

    const auto pad = padOfLabel * regular.getHeight() * 0.9f;
    g.drawText (name.text,
                area.withTrimmedRight (pad).expanded (0.0f, regular.getHeight()),
                juce::Justification::centredRight,
                false);
}

void PitchMap::mouseDown (const juce::MouseEvent& event)
{
    lastY = event.position.y;
}

void PitchMap::mouseDrag (const juce::MouseEvent& event)
{
    if (event.mods.isPopupMenu() || ! event.mouseWasDraggedSinceMouseDown())
        return;

    constexpr auto pixelsPerOctave = 100.0;
    context.view.zoomRows (std::exp2 (double (lastY - event.position.y) / pixelsPerOctave),
                           double (event.mouseDownPosition.y));
    lastY = event.position.y;
}

void PitchMap::mouseUp (const juce::MouseEvent& event)
{
    if (event.mouseWasDraggedSinceMouseDown())
        return;

    const auto row = context.view.get().nearestRowAt (double (event.position.y));

    if (! event.mods.isPopupMenu())
        selectRow (row, event.mods.isShiftDown());
    else if (menuAsked != nullptr)
        menuAsked (row);
}

void PitchMap::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    context.view.zoomRows (zoomFactor (wheel), double (event.position.y));
}

void PitchMap::selectRow (int row, bool adds)
{
    const auto& drawing = context.pattern.getDrawing();
    auto selection = NoteQueries::notesInRow (drawing, row);

    if (adds)
        selection.add (drawing.selection);

    context.pattern.select (selection);
}
} // namespace Zn::GUI
