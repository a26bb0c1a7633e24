#include "GUI/Pattern/PianoRoll.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/FocusRing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Zn::GUI
{
PianoRoll::PianoRoll (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "PianoRoll")
    , context (contextToUse)
    , picture (contextToUse.editor.canvas)
    , mouse (contextToUse, *this)
    , cells (contextToUse, *this)
{
    setOpaque (true);
    setWantsKeyboardFocus (true);
    setTitle ("Piano roll");
    picture.reload();

    for (auto* source : { &context.pattern.drawingChanged,
                          &context.pattern.selectionChanged,
                          &context.pattern.hoverChanged,
                          &context.view.getBroadcaster(),
                          &context.editor.shownSlot.getBroadcaster(),
                          &context.rowNames.getBroadcaster() })
        listeners.push_back (std::make_unique<Events::Listener> (*source, [this] { refresh(); }));

    listeners.push_back (
        std::make_unique<Events::Listener> (context.pattern.lassoChanged, [this] { followLasso(); }));

    listeners.push_back (
        std::make_unique<Events::Listener> (context.editor.state().patterns.getEditorBroadcaster(), [this] {
            if (isElsewhere())
                refresh(); // the ghosts may be others
        }));

    listeners.push_back (
        std::make_unique<Events::Listener> (context.pattern.cellCursor, [this] { followCell(); }));
}

void PianoRoll::schemeChanged()
{
    font = getCanvas().fontOf ("FontTitle");
    mouse.schemeChanged();
    picture.reload();
    context.view.setSize ({ .width = getWidth(), .height = getHeight() });
    refresh();
}

bool PianoRoll::keyPressed (const juce::KeyPress& key)
{
    if (keyAsked == nullptr || ! keyAsked (key))
        return false;

    setKeysInUse (true);
    return true;
}

void PianoRoll::focusGained (FocusChangeType cause)
{
    if (FocusRing::isShownFor (cause, context.editor))
    {
        context.editor.keysInUse = true;
        focusShown();
    }

    refresh();
}

void PianoRoll::setKeysInUse (bool areInUse)
{
    context.editor.keysInUse = areInUse;
    refresh();
}

float PianoRoll::cursorLine() const
{
    return std::max (1.0f, context.editor.canvas.pixelsOf ("ThinnerStroke"));
}

juce::Rectangle<int> PianoRoll::boundsOfCursor() const
{
    const auto& cell = context.pattern.cellCursor.get();

    if (! cell || ! showsFocus() || ! context.pattern.getDrawing().selection.isEmpty())
        return {};

    const auto& geometry = context.view.get();
    const auto start = cell->column * geometry.columnLength();
    return geometry.boundsOfCell (start, start + geometry.columnLength(), cell->row);
}

void PianoRoll::followLasso()
{
    const auto newLasso = context.pattern.getLasso() ? lassoBounds().expanded (2) : juce::Rectangle<int>();
    repaint (paintedLasso);
    repaint (newLasso);
    paintedLasso = newLasso;
}

void PianoRoll::followCell()
{
    const auto newCursor = boundsOfCursor();

    if (newCursor == paintedCursor)
        return;

    const auto edge = static_cast<int> (std::ceil (cursorLine() + 0.5f)); // and what its antialiasing touches
    repaint (paintedCursor.expanded (edge));
    repaint (newCursor.expanded (edge));
    paintedCursor = newCursor;
}

void PianoRoll::showPlace (const std::optional<PlayPlace>& newPlace)
{
    const auto slotBefore = place ? place->slot : -1;
    place = newPlace;
    lastSounding.swap (sounding);
    findSounding();

    if (sounding != lastSounding || slotBefore != (place ? place->slot : -1))
        refresh();
}

const std::vector<Sequencer::TimedNote>& PianoRoll::heardNotes() const
{
    const auto slot = static_cast<std::size_t> (place->slot);
    return context.editor.state().patterns.getSlots()[slot].pattern.steps;
}

void PianoRoll::findSounding()
{
    sounding.clear();

    if (! place || context.rowNames.get().heldKeys.isEmpty())
        return;

    const auto& notes = isElsewhere() ? heardNotes() : context.pattern.getDrawing().notes;

    for (std::size_t index = 0; index < notes.size(); ++index)
    {
        const auto& note = notes[index];

        if (note.enabled && note.time.start <= place->time && place->time < note.time.end())
            sounding.push_back (static_cast<int> (index));
    }
}

bool PianoRoll::isElsewhere() const
{
    return place && place->slot != context.editor.shownSlot.get();
}

void PianoRoll::refresh()
{
    const auto& drawing = context.pattern.getDrawing();

    if (drawing.grid != context.view.get().grid)
        return context.view.setGrid (drawing.grid); // comes back here

    findSounding();
    const auto wasEmpty = std::exchange (isEmpty, drawing.notes.empty());

    if (wasEmpty != isEmpty)
        repaint();

    followCell();

    if (! paintedLasso.isEmpty())
        followLasso();

    for (const auto& area : picture.show (gridLook(), noteLooks()))
        repaint (area);
}

GridLook PianoRoll::gridLook() const
{
    GridLook look { .geometry = context.view.get(), .beats = RollBeats::of (context.pattern.getDrawing()) };

    for (auto row = 0; row < RollGeometry::numRows; ++row)
        look.tintedRows[static_cast<std::size_t> (row)] = context.rowNames.get().isTinted (row);

    return look;
}

std::vector<NoteLook> PianoRoll::noteLooks() const
{
    std::vector<NoteLook> looks;
    looks.reserve (context.pattern.getDrawing().notes.size());

    if (isElsewhere())
        addGhosts (looks);

    addNotes (looks);
    return looks;
}

bool PianoRoll::isSounding (int note) const
{
    return std::binary_search (sounding.begin(), sounding.end(), note);
}

void PianoRoll::addGhosts (std::vector<NoteLook>& looks) const
{
    // Where they would be heard if both patterns ran along with each other.
    const auto& geometry = context.view.get();
    const auto& slots = context.editor.state().patterns.getSlots();
    const auto heardLength = slots[static_cast<std::size_t> (place->slot)].length();
    const auto stretch = heardLength / RollBeats::of (context.pattern.getDrawing()).quarters;
    const auto seen = getLocalBounds().toFloat();
    auto index = 0;

    for (auto note : heardNotes())
    {
        note.time = { note.time.start * stretch, note.time.length * stretch };
        const NoteLook look { .box = geometry.boundsOf (note),
                              .kind = NoteLook::Kind::ghost,
                              .isSounding = isSounding (index++) };

        if (note.enabled && look.box.intersects (seen))
            looks.push_back (look);
    }
}

void PianoRoll::addNotes (std::vector<NoteLook>& looks) const
{
    const auto& drawing = context.pattern.getDrawing();
    const auto seen = getLocalBounds().toFloat().expanded (context.editor.canvas.pixelsOf ("LaneHandle"));
    const auto sounds = ! isElsewhere();
    const auto focused = showsFocus() && drawing.selection.size() == 1 ? drawing.selection.first() : -1;

    for (auto index = 0; index < drawing.numNotes(); ++index)
    {
        const auto& note = drawing.note (index);
        const NoteLook look { .box = context.view.get().boundsOf (note),
                              .velocity = note.event.velocity,
                              .chance = note.event.chance,
                              .isEnabled = note.enabled,
                              .isSelected = drawing.selection.contains (index),
                              .isHovered = context.pattern.getHoveredNote() == index,
                              .isSounding = sounds && isSounding (index),
                              .isFocused = focused == index };

        if (look.box.intersects (seen))
            looks.push_back (look);
    }
}

void PianoRoll::paint (juce::Graphics& g)
{
    picture.paint (g);

    if (isEmpty)
    {
        g.setColour (AssetScheme::Base::get().colourOf ("TextQuiet"));
        g.setFont (font);
        g.drawText ("Draw here", getLocalBounds(), juce::Justification::centred, false);
    }

    if (context.pattern.getLasso())
        paintLasso (g);

    if (! paintedCursor.isEmpty())
    {
        g.setColour (AssetScheme::Base::get().colourOf ("Focus"));
        g.drawRect (paintedCursor.toFloat().expanded (0.5f * cursorLine()), cursorLine());
    }
}

juce::Rectangle<int> PianoRoll::lassoBounds() const
{
    const auto& lasso = context.pattern.getLasso();

    if (! lasso)
        return {};

    const auto& geometry = context.view.get();

    const auto pixelOf = [&] (const RollPoint& point) {
        return juce::Point<double> (geometry.xOf (point.time),
                                    (geometry.topRow - point.row) * geometry.rowHeight)
            .roundToInt();
    };

    return { pixelOf (lasso->from), pixelOf (lasso->to) };
}

void PianoRoll::paintLasso (juce::Graphics& g) const
{
    const auto& scheme = AssetScheme::Base::get();
    const auto area = lassoBounds().toFloat();

    g.setColour (scheme.colourOf ("TimeWash"));
    g.fillRect (area);

    const auto line = std::max (1.0f, context.editor.canvas.pixelsOf ("HairlineStroke"));
    const std::array dashes { 4.0f * line, 3.0f * line };
    g.setColour (scheme.colourOf ("Time"));

    for (const auto& side : { juce::Line<float> (area.getTopLeft(), area.getTopRight()),
                              juce::Line<float> (area.getTopRight(), area.getBottomRight()),
                              juce::Line<float> (area.getBottomRight(), area.getBottomLeft()),
                              juce::Line<float> (area.getBottomLeft(), area.getTopLeft()) })
        g.drawDashedLine (side, dashes.data(), static_cast<int> (dashes.size()), line);
}
} // namespace Zn::GUI
