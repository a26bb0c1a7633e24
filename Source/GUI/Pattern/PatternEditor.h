#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Pattern/Drawing.h"
#include "GUI/Pattern/RollPointer.h"
#include "GUI/Pattern/UndoneSlot.h"
#include "GUI/Widgets/EditorContext.h"

#include <functional>
#include <memory>
#include <optional>

namespace Zn::GUI
{
/** The drawing of the slot that is shown, and every change of it by hand.

    An edit is one step of undo and one frame for the audio thread; a drag is one step too, and is heard while it lasts,
    every 20 ms. What others do to the slot (a preset, undo, another slot that is opened) is taken in at once: notes that
    are still there stay selected, and a drag that was under way has ended. Thread: message.
*/
class PatternEditor
{
public:
    using Change = std::function<void (Drawing&)>;

    /** Edits that follow each other quickly are one, as long as they are of one kind. */
    enum class Nudge
    {
        move,
        length,
        value,
        scale
    };

    explicit PatternEditor (EditorContext& contextToUse);

    /** Ends a drag. */
    ~PatternEditor();

    const Drawing& getDrawing() const noexcept { return shown; }

    /** The columns, and whether edits keep to them: the switch, or its opposite. */
    NoteGrid getGrid (bool oppositeOfSnap = false) const noexcept;

    int getHoveredNote() const noexcept { return hovered; }
    void setHoveredNote (int note);

    /** Notes that do not exist are left out. */
    void select (const NoteSelection& selection);

    /** The rectangle that is being drawn to select with. */
    const std::optional<RollArea>& getLasso() const noexcept { return lasso; }
    void setLasso (std::optional<RollArea> newLasso);

    /** The cell that keys add a note to; none until they are used. */
    Events::Value<std::optional<RollCell>> cellCursor;

    /** Each tells of what its name says, and only when that has become another. */
    Events::Broadcaster drawingChanged, selectionChanged, hoverChanged, lassoChanged;

    /** A step of undo, unless nothing that plays has changed. Tells whether it has. */
    bool perform (const juce::String& name, const Change& change);

    /** The same for a press of a key or a turn of the wheel, which joins the last one of its kind. */
    bool nudge (Nudge kind, const juce::String& name, const Change& change);

    /** Starts a drag. Until it ends or is cancelled, each update starts anew from the drawing as it was now, so that
        rounding does not add up.
    */
    void beginDrag (const juce::String& name);
    void updateDrag (const Change& change);

    /** The drawing stays as the last update has left it: one step of undo, if it plays otherwise than before. */
    void endDrag();

    /** The drawing is what it was, and so is the selection. */
    void cancelDrag();

    /** False also when the slot has been taken away from a drag. */
    bool isDragging() const noexcept;

    /** As it was when the drag began; else as it is. */
    const Drawing& getDrawingAtPress() const noexcept;

private:
    struct Press;

    Sequencer::PatternSlot& slot() const;
    void show (Drawing newDrawing);
    bool apply (const Change& change);
    void publish();
    void publishWhenDue();
    void followModel();
    void followSlot();

    EditorContext& context;
    std::size_t slotIndex;
    Drawing shown, written; // what the view shows, and what the slot holds: they differ only during a drag
    std::unique_ptr<Press> press;
    int hovered = -1;
    std::optional<RollArea> lasso;
    bool isPublishing = false;
    bool isTravelling = false;           // undo and redo
    juce::uint32 lastPublished = 0;      // milliseconds
    std::array<char, 4> nudgeTargets {}; // one for each kind, compared by address

    UndoneSlot undoneSlot { context };
    Events::Listener modelListener, slotListener, pollListener, departure, arrival;
};
} // namespace Zn::GUI
