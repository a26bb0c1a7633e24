#pragma once

#include "GUI/Pattern/PatternEditor.h"
#include "GUI/Pattern/RollTool.h"

namespace Zn::GUI
{
/** Selects what a rectangle touches; Shift adds to what is selected. */
class LassoTool : public RollTool
{
public:
    explicit LassoTool (PatternEditor& editorToUse) noexcept : editor (editorToUse) {}

    void down (const RollPointer& pointer) override;
    void drag (const RollPointer& pointer) override;
    void up (const RollPointer& pointer) override;
    RollCursor cursorAt (const RollPointer&) const override { return RollCursor::cross; }

private:
    void take (RollPoint to);

    PatternEditor& editor;
    RollPoint corner;
    NoteSelection before;
};

/** Selects, moves, copies and lengthens notes. */
class SelectTool : public RollTool
{
public:
    explicit SelectTool (PatternEditor& editorToUse) noexcept : editor (editorToUse), lasso (editorToUse) {}

    void down (const RollPointer& pointer) override;
    void drag (const RollPointer& pointer) override;
    void up (const RollPointer& pointer) override;
    void doubleClick (const RollPointer& pointer) override;
    RollCursor cursorAt (const RollPointer& pointer) const override;

private:
    void move (const RollPointer& pointer);
    void clickNote (const RollPointer& pointer);

    PatternEditor& editor;
    LassoTool lasso;
    RollPointer pressed;
    bool wasSelected = false, hasDragged = false;
};
} // namespace Zn::GUI
