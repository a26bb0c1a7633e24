#pragma once

#include "GUI/Pattern/NoteValue.h"
#include "GUI/Pattern/PatternEditor.h"

#include <map>
#include <optional>
#include <utility>

namespace Zn::GUI
{
/** What the pointer is at while it moves over the lane. */
struct LanePointer
{
    double time = 0.0;  // part of the pattern
    float value = 0.0f; // 0 at the foot to 1 at the top, beyond outside
    int note = -1;      // the one whose handle is under the pointer, -1 none
    double reach = 0.0; // how far from the pointer a note may begin to be meant, part of the pattern
    juce::ModifierKeys modifiers {};
    int numClicks = 1; // 2: the second press of a double click
};

/** The lane under the roll: paints a value over each note that the pointer passes, with Shift a straight ramp from the press
    on; a handle moves its note or, in proportion, the selection; with Alt it opens the spread of velocity.
    Thread: message.
*/
class LaneTool
{
public:
    LaneTool (PatternEditor& editorToUse, const Events::Value<NoteValue>& valueToEdit) noexcept
        : editor (editorToUse), laneValue (valueToEdit)
    {}

    void down (const LanePointer& pointer);
    void drag (const LanePointer& pointer);

    /** The second click of two on a handle gives its note what new notes have. */
    void up (const LanePointer& pointer);

    /** Takes back what the drag has done; false when there is none. */
    bool cancel();

    bool isDragging() const noexcept { return action != Action::none; }
    RollReadout getReadout() const;

    /** While a ramp is drawn: from the press to the pointer. */
    std::optional<std::pair<LanePointer, LanePointer>> getRamp() const
    {
        return action == Action::ramp ? std::optional (std::pair (pressed, last)) : std::nullopt;
    }

private:
    enum class Action
    {
        none,
        paint,
        ramp,
        handle,
        spread
    };

    void paint (const LanePointer& to);
    void drawRamp (const LanePointer& to);
    void moveHandle (float by);
    void openSpread (float by);
    void apply();

    PatternEditor& editor;
    const Events::Value<NoteValue>& laneValue;
    Action action = Action::none;
    NoteValue value = NoteValue::velocity;
    LanePointer pressed, last;
    bool hasDragged = false;
    std::map<int, float> painted; // values by note
};
} // namespace Zn::GUI
