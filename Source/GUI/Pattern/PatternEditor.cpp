#include "GUI/Pattern/PatternEditor.h"

#include "GUI/Pattern/NoteMatch.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto publishMilliseconds = 20u; // at least, between two frames of a drag
}

struct PatternEditor::Press
{
    std::unique_ptr<Undo::Transaction> transaction;
    Drawing drawing;         // as it was
    bool isDisowned = false; // others have changed the slot since, so it no longer belongs to the drag
};

PatternEditor::PatternEditor (EditorContext& contextToUse)
    : context (contextToUse)
    , slotIndex (static_cast<std::size_t> (contextToUse.shownSlot.get()))
    , shown (Drawing::of (slot()))
    , written (shown)
    , modelListener (contextToUse.state().patterns.getEditorBroadcaster(), [this] { followModel(); })
    , slotListener (contextToUse.shownSlot, [this] { followSlot(); })
    , pollListener (contextToUse.polls, [this] { publishWhenDue(); })
    , departure (contextToUse.edits.aboutToTravel, [this] { isTravelling = true; })
    , arrival (contextToUse.edits.travelled, [this] { isTravelling = false; })
{}

PatternEditor::~PatternEditor()
{
    endDrag();
}

NoteGrid PatternEditor::getGrid (bool oppositeOfSnap) const noexcept
{
    return { .columns = shown.grid, .snaps = context.state().snap != oppositeOfSnap };
}

void PatternEditor::setHoveredNote (int note)
{
    if (std::exchange (hovered, note) != note)
        hoverChanged.callListeners();
}

void PatternEditor::select (const NoteSelection& selection)
{
    NoteSelection existing;

    for (const auto note : selection)
        if (shown.hasNote (note))
            existing.set (note, true);

    if (shown.selection == existing)
        return;

    context.edits.finish();
    shown.selection = std::move (existing);
    selectionChanged.callListeners();
}

void PatternEditor::setLasso (std::optional<RollArea> newLasso)
{
    if (lasso == newLasso)
        return;

    lasso = newLasso;
    lassoChanged.callListeners();
}

bool PatternEditor::perform (const juce::String& name, const Change& change)
{
    endDrag();

    auto hasChanged = false;
    context.edits.perform (name, [&] { return hasChanged = apply (change); });
    return hasChanged;
}

bool PatternEditor::nudge (Nudge kind, const juce::String& name, const Change& change)
{
    endDrag();

    auto hasChanged = false;
    context.edits.join (&nudgeTargets[static_cast<std::size_t> (kind)], name, [&] {
        return hasChanged = apply (change);
    });
    return hasChanged;
}

/** To what is shown and to the slot. Whether it plays otherwise than before. */
bool PatternEditor::apply (const Change& change)
{
    auto drawing = shown;
    change (drawing);
    show (std::move (drawing));

    const auto hasChanged = ! shown.playsAs (written);
    publish();
    return hasChanged;
}

void PatternEditor::beginDrag (const juce::String& name)
{
    endDrag();

    auto transaction = context.edits.begin (name); // may load the project, and so change what is shown
    press = std::make_unique<Press> (Press { .transaction = std::move (transaction), .drawing = shown });
}

void PatternEditor::updateDrag (const Change& change)
{
    if (! isDragging())
        return;

    auto drawing = press->drawing;
    change (drawing);
    show (std::move (drawing));
    publishWhenDue();
}

void PatternEditor::endDrag()
{
    if (press == nullptr)
        return;

    publish();
    const auto ended = std::move (press);

    if (! ended->isDisowned && ! shown.playsAs (ended->drawing))
        ended->transaction->markChanged();
}

void PatternEditor::cancelDrag()
{
    if (press == nullptr)
        return;

    if (isDragging())
        show (press->drawing);

    endDrag();
}

bool PatternEditor::isDragging() const noexcept
{
    return press != nullptr && ! press->isDisowned;
}

const Drawing& PatternEditor::getDrawingAtPress() const noexcept
{
    return isDragging() ? press->drawing : shown;
}

Sequencer::PatternSlot& PatternEditor::slot() const
{
    return context.state().patterns.getSlots()[slotIndex];
}

void PatternEditor::show (Drawing newDrawing)
{
    const auto playsAnew = ! newDrawing.playsAs (shown);
    const auto selectsAnew = newDrawing.selection != shown.selection;
    shown = std::move (newDrawing);

    if (! shown.hasNote (hovered))
        setHoveredNote (-1);

    if (const auto cell = cellCursor.get(); cell && cell->column >= shown.grid)
        cellCursor.set (RollCell { .column = shown.grid - 1, .row = cell->row });

    if (playsAnew)
        drawingChanged.callListeners();

    if (selectsAnew)
        selectionChanged.callListeners();
}

void PatternEditor::publish()
{
    if (shown.playsAs (written))
        return;

    const juce::ScopedValueSetter<bool> byOurselves (isPublishing, true);
    const Sequencer::PatternController::Edit edit (context.state().patterns);
    shown.writeTo (slot());
    written = shown;
    lastPublished = juce::Time::getMillisecondCounter();
}

void PatternEditor::publishWhenDue()
{
    if (juce::Time::getMillisecondCounter() - lastPublished >= publishMilliseconds)
        publish();
}

void PatternEditor::followModel()
{
    if (isPublishing)
        return;

    auto drawing = Drawing::of (slot());

    if (drawing.playsAs (written))
        return; // another slot, or the swing

    if (press != nullptr)
        press->isDisowned = true;

    setLasso ({});
    const auto keepsPlaces = isTravelling && shown.notes.size() == drawing.notes.size(); // notes only move
    drawing.selection = keepsPlaces ? shown.selection : selectionStillIn (drawing.notes, shown);
    written = drawing;
    show (std::move (drawing));
}

void PatternEditor::followSlot()
{
    const auto newIndex = static_cast<std::size_t> (context.shownSlot.get());

    if (slotIndex == newIndex)
        return;

    context.edits.finish(); // the next nudge is one of another pattern

    endDrag();
    setLasso ({});
    setHoveredNote (-1);

    slotIndex = newIndex;
    written = Drawing::of (slot());
    show (written);
}
} // namespace Zn::GUI
