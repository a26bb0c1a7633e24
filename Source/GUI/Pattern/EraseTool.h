#pragma once

#include "GUI/Pattern/NoteEdits.h"
#include "GUI/Pattern/PatternEditor.h"
#include "GUI/Pattern/RollTool.h"

namespace Zn::GUI
{
/** Erases what it crosses, once it moves. */
class EraseTool : public RollTool
{
public:
    explicit EraseTool (PatternEditor& editorToUse) noexcept : editor (editorToUse) {}

    void down (const RollPointer& pointer) override
    {
        place = pointer.at;
        crossed = {};
        editor.beginDrag ("Erase notes");
    }

    void drag (const RollPointer& pointer) override
    {
        crossed.add (NoteQueries::notesBetween (editor.getDrawingAtPress(), place, pointer.at));
        place = pointer.at;
        editor.updateDrag ([this] (Drawing& drawing) { NoteEdits::erase (drawing, crossed); });
    }

    void up (const RollPointer&) override { editor.endDrag(); }
    RollCursor cursorAt (const RollPointer&) const override { return RollCursor::pencil; }

private:
    PatternEditor& editor;
    RollPoint place;
    NoteSelection crossed;
};
} // namespace Zn::GUI
