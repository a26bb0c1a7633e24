#pragma once

#include "GUI/Pattern/NoteValue.h"
#include "GUI/Pattern/PatternEditor.h"
#include "GUI/Pattern/RollTool.h"

#include <optional>

namespace Zn::GUI
{
/** The tools of the roll: gives each press of the pointer to the one that the brush, the button and the modifiers ask for,
    and follows up to the release with it. Thread: message.
*/
class RollTools
{
public:
    RollTools (EditorContext& contextToUse, PatternEditor& editorToUse);
    ~RollTools();

    /** Without a button. */
    void hover (const RollPointer& pointer);
    void leave();

    void down (const RollPointer& pointer);
    void drag (const RollPointer& pointer);

    /** A second press in one place counts as a double click here, too: no other call is needed for it. */
    void up (const RollPointer& pointer);

    /** Takes back what the drag has done; false when there is none. */
    bool cancel();

    /** A turn of the wheel over a note, with Alt: its value by whole percents. False where there is no note. */
    bool turnWheel (const RollPointer& pointer, int percent);

    /** What the brush in hand changes, of some notes and by whole percents; joins the last one if that was the same. */
    void nudgeValue (const NoteSelection& notes, int percent);

    bool isDragging() const noexcept { return current != nullptr; }
    bool scrolls() const { return current != nullptr && current->scrolls(); }
    RollCursor cursorAt (const RollPointer& pointer) const;
    RollReadout getReadout() const;

    /** What the brush in hand changes, velocity for those that change none. */
    NoteValue getValueOfBrush() const noexcept;

    /** What the lane edits: taking a brush for it switches it. */
    Events::Value<NoteValue> laneValue;

    /** Called for a click with the right button, at its release. */
    std::function<void (const RollPointer&)> menuAsked;

private:
    RollTool& toolFor (const RollPointer& pointer) const;
    bool isUpToDate() const;
    void followBrush();

    /** The drawing has become another one: what the hand held is no longer there. */
    void letGo() noexcept { current = nullptr; }

    struct Nudged
    {
        NoteValue value;
        NoteSelection notes;

        bool operator== (const Nudged&) const = default;
    };

    EditorContext& context;
    PatternEditor& editor;
    struct Tools;
    const std::unique_ptr<Tools> tools;
    RollTool* current = nullptr; // between press and release
    RollPointer pressed;
    NoteSelection selectionBefore;
    bool hasDragged = false;
    Audio::Plugins::Vornel::Brush brushBefore {};
    std::optional<Nudged> nudged; // last
    Events::Listener brushListener, slotListener, drawingListener;
};
} // namespace Zn::GUI
