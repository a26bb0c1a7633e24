#pragma once

#include "GUI/Pattern/NoteValue.h"
#include "GUI/Pattern/PatternEditor.h"
#include "GUI/Pattern/RollTool.h"

namespace Zn::GUI
{
/** Changes the velocity or the chance of notes: up and down on a note, together with the selection; along the notes it
    gives each one it passes the value that was pressed, or on an empty place the last one; with Alt it opens the spread of
    velocity.
*/
class ValueTool : public RollTool
{
public:
    ValueTool (PatternEditor& editorToUse, NoteValue valueToUse) noexcept
        : editor (editorToUse), value (valueToUse), inHand (defaultOf (valueToUse))
    {}

    void down (const RollPointer& pointer) override;
    void drag (const RollPointer& pointer) override;
    void up (const RollPointer& pointer) override;
    void doubleClick (const RollPointer& pointer) override;
    RollCursor cursorAt (const RollPointer& pointer) const override;
    RollReadout getReadout() const override;
    bool scrolls() const override { return action == Action::paint; }

private:
    enum class Action
    {
        undecided,
        change,
        spread,
        paint
    };

    Action actionFor (const RollPointer& pointer) const noexcept;
    void change (float amount);
    void spread (float amount);
    void paint (RollPoint to);

    PatternEditor& editor;
    const NoteValue value;
    float inHand; // what is painted
    Action action = Action::undecided;
    RollPointer pressed;
    RollPoint brush; // where it was last
    NoteSelection painted;
};
} // namespace Zn::GUI
