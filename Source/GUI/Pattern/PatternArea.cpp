#include "GUI/Pattern/PatternArea.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Pattern/NoteQueries.h"
#include "GUI/Widgets/ValueKeys.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
PatternArea::PatternArea (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "ArpEditing")
    , context (contextToUse)
    , keys (contextToUse, pattern, tools, viewOfKeys())
    , tables (contextToUse.state().pitchTables.getReader())
    , tableCount (tables.getChangeCount() - 1)
    , pollListener (contextToUse.polls, [this] { nameRows(); })
    , slotListener (contextToUse.shownSlot, [this] { bringIntoSight(); })
    , loadListener (contextToUse.state().loaded, [this] { bringIntoSight(); })
    , fit (contextToUse, "ZoomFit", { .icon = "fit.svg", .look = Button::Look::quiet }, [this] {
        view.fit (rowsInUse());
    })
{
    setTitle ("Pattern");
    setOpaque (true);
    nameRows();

    for (auto* part : std::initializer_list<juce::Component*> { &chord,
                                                                &ruler,
                                                                &elsewhere,
                                                                &fit,
                                                                &pitches,
                                                                &drawing,
                                                                &scrollBar,
                                                                &velocity,
                                                                &chance,
                                                                &lane,
                                                                &playLine,
                                                                &hint })
        addChildComponent (part);

    for (auto* part : std::initializer_list<juce::Component*> { &chord,
                                                                &ruler,
                                                                &fit,
                                                                &pitches,
                                                                &drawing,
                                                                &scrollBar,
                                                                &velocity,
                                                                &chance,
                                                                &lane })
        part->setVisible (true);

    connect();
}

void PatternArea::connect()
{
    playLine.moved = [this] (const auto& place) { drawing.showPlace (place); };
    tools.menuAsked = [this] (const RollPointer& pointer) { menus.showForRoll (pointer); };
    ruler.menuAsked = [this] { menus.showForRuler (ruler); };
    pitches.menuAsked = [this] (int row) { menus.showForRow (row); };

    drawing.keyAsked = [this] (const juce::KeyPress& key) { return pressKey (key); };
    drawing.focusShown = [this] { keys.showCell(); };

    // Whatever is clicked beside the roll, its keys go on.
    for (auto* part : std::initializer_list<juce::Component*> { &ruler, &pitches, &scrollBar, &lane })
    {
        part->setMouseClickGrabsKeyboardFocus (false);
        part->addMouseListener (this, false);
    }

    context.actions.endSelection = [this] {
        context.overlay.hideReadout();
        return escape();
    };
}

void PatternArea::mouseDown (const juce::MouseEvent&)
{
    drawing.setKeysInUse (false);

    if (drawing.isShowing())
        drawing.grabKeyboardFocus();
}

bool PatternArea::pressKey (const juce::KeyPress& key)
{
    const auto modifiers = key.getModifiers();

    if (key == juce::KeyPress::escapeKey)
        return escape();

    if (tools.isDragging() || lane.isDragging()) // the hand holds what keys would change
        return ! key.isKeyCode (juce::KeyPress::spaceKey);

    if (key.isKeyCode (juce::KeyPress::tabKey)
        && modifiers.isCtrlDown()) // without it Tab goes from note to note
    {
        drawing.moveKeyboardFocusToSibling (! modifiers.isShiftDown());
        return true;
    }

    if (ValueKey::of (key).wish == ValueKey::Wish::menu)
    {
        menus.showForKeys (drawing, ruler);
        return true;
    }

    return pressSlot (key) || keys.press (key);
}

/** 1 to 8, here without Ctrl. */
bool PatternArea::pressSlot (const juce::KeyPress& key)
{
    const auto modifiers = key.getModifiers();
    const auto slot = key.getKeyCode() - '1';

    if (! juce::isPositiveAndBelow (slot, Sequencer::numSlots) || modifiers.isCommandDown()
        || modifiers.isCtrlDown() || modifiers.isShiftDown())
        return false;

    const auto& act = modifiers.isAltDown() ? context.actions.openSlot : context.actions.playSlot;
    act (slot);
    return true;
}

bool PatternArea::escape()
{
    return lane.cancel() || keys.escape();
}

RollKeys::View PatternArea::viewOfKeys()
{
    return { .rowsPerCycle = [this] { return std::max (1, rowNames.get().heldKeys.size()); },
             .pasteTime = [this] { return pasteTime(); },
             .zoom = [this] (double factor) { view.zoomTime (factor, 0.5 * view.get().size.width); },
             .fit = [this] { view.fit (rowsInUse()); },
             .reveal = [this] (double start, double end, int row) { view.showCell (start, end, row); },
             .names = [this]() -> const RowNames& { return rowNames.get(); } };
}

/** Of the slot itself: the drawing may not know yet that it is another one. */
const std::vector<Sequencer::TimedNote>& PatternArea::notesInUse() const
{
    const auto shown = static_cast<std::size_t> (context.shownSlot.get());
    return context.state().patterns.getSlots()[shown].pattern.steps;
}

juce::Range<int> PatternArea::rowsInUse() const
{
    return NoteQueries::rowsOf (notesInUse());
}

/** A pattern that has just been opened is not taken for an empty one. */
void PatternArea::bringIntoSight()
{
    const auto isInSight = [this] (const Sequencer::TimedNote& note) {
        return view.get().shows (juce::Range<int>::withStartAndLength (note.event.noteNum, 1));
    };

    if (notesInUse().empty() || std::ranges::any_of (notesInUse(), isInSight))
        return;

    const auto rows = rowsInUse();
    const auto first = notesInUse().front().event.noteNum;
    const auto haveRoom = rows.getLength() <= view.get().rowsVisible();
    view.centreOn (haveRoom ? rows : juce::Range<int>::withStartAndLength (first, 1));
}

double PatternArea::pasteTime()
{
    if (const auto place = PlayPlace::of (context.state()); place && place->slot == context.shownSlot.get())
        return place->time;

    const auto pointer = drawing.getMouseXYRelative();
    return drawing.isMouseOver() ? view.get().timeAt (pointer.x) : view.get().time.getStart();
}

void PatternArea::nameRows()
{
    const auto count = tables.getChangeCount();
    const auto octaveOfMiddleC = context.settings.get().middleC;

    if (count == tableCount && octaveOfMiddleC == middleC)
        return;

    tableCount = count;
    middleC = octaveOfMiddleC;
    rowNames.set (RowNames::from (tables.newest(), middleC));
}

void PatternArea::schemeChanged()
{
    const auto boundsOf = [this] (const char* element) { return context.canvas.boundsIn (this, element); };
    const auto rollBounds = boundsOf ("PianoRoll");
    playLine.setTrack (
        rollBounds.withTop (boundsOf ("Ruler").getY()).withBottom (boundsOf ("NoteLane").getBottom()),
        rollBounds);

    if (context.canvas.getDimensions().get().height > 0 && ! std::exchange (wasPlaced, true))
        bringIntoSight();
}

void PatternArea::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    g.fillAll (scheme.colourOf ("Inset"));

    // Beside the lane: all else is covered.
    const auto line = std::max (1, juce::roundToInt (context.canvas.pixelsOf ("HairlineStroke")));
    g.setColour (scheme.colourOf ("Hairline"));
    g.fillRect (0, lane.getY(), lane.getX(), line);
    g.fillRect (0, lane.getBottom() - line, lane.getX(), line);
    g.fillRect (lane.getX() - line, lane.getY(), line, lane.getHeight());
}
} // namespace Zn::GUI
