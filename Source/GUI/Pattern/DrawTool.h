#pragma once

#include "GUI/Pattern/PatternEditor.h"
#include "GUI/Pattern/RollTool.h"

#include <map>

namespace Zn::GUI
{
/** The pencil. On an empty place it adds a note, which a drag lengthens, or with Shift a line of notes; a note under it is
    erased by a click, switched by a click with Alt, moved by a drag.
*/
class DrawTool : public RollTool
{
public:
    explicit DrawTool (PatternEditor& editorToUse) noexcept : editor (editorToUse) {}

    void down (const RollPointer& pointer) override;
    void drag (const RollPointer& pointer) override;
    void up (const RollPointer& pointer) override;
    RollCursor cursorAt (const RollPointer& pointer) const override;

private:
    enum class Action
    {
        add,
        line,
        move
    };

    void addNote (const RollPointer& pointer);
    void continueLine (RollPoint to);
    void moveNote (const RollPointer& pointer);
    void clickNote (const RollPointer& pointer);

    PatternEditor& editor;
    Action action = Action::add;
    RollPointer pressed;
    RollPoint lineEnd;
    std::map<int, int> line; // rows by column
    bool hasDragged = false;
};
} // namespace Zn::GUI
