#include "GUI/Pattern/NoteLane.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Pattern/RollBeats.h"

#include <array>
#include <utility>

namespace Zn::GUI
{
NoteLane::NoteLane (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "NoteLane")
    , context (contextToUse)
    , picture ([this] (juce::Graphics& g) { paintLane (g); })
    , tool (contextToUse.pattern, contextToUse.tools.laneValue)
{
    setOpaque (true);
    setTitle ("Note lane");

    for (auto* source : { &context.pattern.drawingChanged,
                          &context.pattern.selectionChanged,
                          &context.view.getBroadcaster(),
                          &context.tools.laneValue.getBroadcaster() })
        listeners.push_back (std::make_unique<Events::Listener> (*source, [this] { refresh(); }));
}

void NoteLane::refresh()
{
    handles =
        lane.handlesOf (context.pattern.getDrawing(), context.tools.laneValue.get(), context.view.get());
    picture.invalidate();
    repaint();
}

/** Moves without a note's value, too. */
void NoteLane::refreshRamp()
{
    if (std::exchange (hasRamp, tool.getRamp().has_value()) || hasRamp)
        refresh();
}

void NoteLane::schemeChanged()
{
    painter.load (getCanvas());
    lane = { .height = float (getHeight()), .handle = getCanvas().pixelsOf ("LaneHandle") };
    refresh();
}

LanePointer NoteLane::pointerOf (const juce::MouseEvent& event) const
{
    const auto& roll = context.view.get();
    return { .time = roll.timeAt (double (event.position.x - lane.offsetOfFan())),
             .value = lane.valueAt (event.position.y),
             .note = lane.hit (event.position, handles),
             .reach = double (lane.handle) / roll.pixelsPerTime(),
             .modifiers = event.mods,
             .numClicks = event.getNumberOfClicks() };
}

bool NoteLane::cancel()
{
    context.editor.overlay.hideReadout();
    const auto wasDragging = tool.cancel();
    refreshRamp();
    return wasDragging;
}

void NoteLane::mouseMove (const juce::MouseEvent& event)
{
    setMouseCursor (lane.hit (event.position, handles) >= 0 ? juce::MouseCursor::UpDownResizeCursor
                                                            : juce::MouseCursor::NormalCursor);
}

void NoteLane::mouseDown (const juce::MouseEvent& event)
{
    if (! event.mods.isLeftButtonDown())
        return;

    tool.down (pointerOf (event));
    showReadout (event);
}

void NoteLane::mouseDrag (const juce::MouseEvent& event)
{
    if (! tool.isDragging() || ! event.mouseWasDraggedSinceMouseDown()) // a click that trembles is none
        return;

    tool.drag (pointerOf (event));
    showReadout (event);
    refreshRamp();
}

void NoteLane::mouseUp (const juce::MouseEvent& event)
{
    context.editor.overlay.hideReadout();

    if (tool.isDragging())
        tool.up (pointerOf (event));

    refreshRamp();
}

void NoteLane::showReadout (const juce::MouseEvent& event)
{
    if (const auto readout = tool.getReadout(); readout.name.isNotEmpty())
        context.editor.overlay.showReadout (readout.name, readout.value, event.getScreenPosition());
    else
        context.editor.overlay.hideReadout();
}

void NoteLane::paintLane (juce::Graphics& g) const
{
    const auto& scheme = AssetScheme::Base::get();
    const auto& roll = context.view.get();
    const auto beats = RollBeats::of (context.pattern.getDrawing());
    const auto line = std::max (1, juce::roundToInt (context.editor.canvas.pixelsOf ("HairlineStroke")));

    g.fillAll (scheme.colourOf ("Inset"));

    const auto least = double (scheme.constantOf ("ColumnWidthMinimum"));
    const auto stride = beats.strideFor (roll.pixelsPerTime() / beats.quarters, least);
    const auto first = static_cast<int> (beats.beatOf (roll.time.getStart())) / stride * stride;
    g.setColour (scheme.colourOf ("GridBeat"));

    for (auto beat = first; beat <= beats.beatOf (roll.time.getEnd()); beat += stride)
        g.fillRect (roll.pixelOf (beats.timeOf (beat)), 0, line, getHeight());

    g.setColour (scheme.colourOf ("Hairline"));
    g.fillRect (getLocalBounds().removeFromTop (line));
    g.fillRect (getLocalBounds().removeFromBottom (line));

    for (auto each = handles.rbegin(); each != handles.rend(); ++each) // the first of a fan lies on top
        if (each->position.x > -lane.handle && each->position.x < float (getWidth()) + lane.handle)
            paintHandle (g, *each);

    paintRamp (g);
}

void NoteLane::paintRamp (juce::Graphics& g) const
{
    const auto ramp = tool.getRamp();

    if (! ramp)
        return;

    const auto placeOf = [this] (const LanePointer& pointer) {
        return juce::Point (float (context.view.get().xOf (pointer.time)) + lane.offsetOfFan(),
                            lane.yOf (pointer.value));
    };
    const auto line = std::max (1.0f, context.editor.canvas.pixelsOf ("ThinnerStroke"));
    const std::array dashes { 2.0f * line, 2.0f * line };

    g.setColour (AssetScheme::Base::get().colourOf ("Time"));
    g.drawDashedLine ({ placeOf (ramp->first), placeOf (ramp->second) },
                      dashes.data(),
                      static_cast<int> (dashes.size()),
                      line);
}

void NoteLane::paintHandle (juce::Graphics& g, const LaneHandle& handle) const
{
    constexpr auto stemWidth = 0.38f, ringDistance = 0.76f; // of the handle's diameter
    constexpr auto stemOpacity = 0.75f;

    const auto& drawing = context.pattern.getDrawing();
    const auto& note = drawing.note (handle.note);
    const auto disabledOpacity = AssetScheme::Base::get().constantOf ("DisabledOpacity");
    const auto colour =
        painter.colourOf (note.event.velocity).withMultipliedAlpha (note.enabled ? 1.0f : disabledOpacity);
    const auto [x, y] = std::pair (handle.position.x, handle.position.y);
    const auto stem = stemWidth * lane.handle;
    const auto spread = spreadOf (note.event);

    g.setColour (colour.withMultipliedAlpha (stemOpacity));
    g.fillRect (
        juce::Rectangle<float>::leftTopRightBottom (x - 0.5f * stem, y, x + 0.5f * stem, lane.yOf (0.0f)));

    if (spread > 0.0f && context.tools.laneValue.get() == NoteValue::velocity)
        paintSpread (g, note.event, x, colour);

    g.setColour (colour);
    g.fillEllipse (juce::Rectangle<float> (lane.handle, lane.handle).withCentre (handle.position));

    if (drawing.selection.contains (handle.note))
    {
        const auto ring = 2.0f * ringDistance * lane.handle;
        g.setColour (AssetScheme::Base::get().colourOf ("NoteSelected"));
        g.drawEllipse (juce::Rectangle<float> (ring, ring).withCentre (handle.position),
                       context.editor.canvas.pixelsOf ("ThinnerStroke"));
    }
}

void NoteLane::paintSpread (juce::Graphics& g,
                            const Sequencer::NoteEvent& event,
                            float x,
                            juce::Colour colour) const
{
    const auto half = 0.5f * lane.handle;
    const auto line = context.editor.canvas.pixelsOf ("ThinnerStroke");
    const auto top = lane.yOf (event.velocity + event.spreadHigh);
    const auto foot = lane.yOf (event.velocity + event.spreadLow);

    g.setColour (colour);
    g.fillRect (juce::Rectangle<float> (x - half, top, 2.0f * half, line));
    g.fillRect (juce::Rectangle<float> (x - half, foot, 2.0f * half, line));
    g.fillRect (juce::Rectangle<float> (x - 0.5f * line, top, line, foot - top));
}
} // namespace Zn::GUI
