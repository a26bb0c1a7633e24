#include "GUI/Pattern/RollTools.h"

#include "GUI/Pattern/DrawTool.h"
#include "GUI/Pattern/EraseTool.h"
#include "GUI/Pattern/SelectTool.h"
#include "GUI/Pattern/SlotEdits.h"
#include "GUI/Pattern/ValueTool.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;

constexpr auto dragThreshold = 3.0f; // pixels that the pointer may move before a click becomes a drag

/** What the right button does where it only opens a menu. */
struct MenuTool : RollTool
{
    void down (const RollPointer&) override {}
    void drag (const RollPointer&) override {}
    void up (const RollPointer&) override {}
    RollCursor cursorAt (const RollPointer&) const override { return RollCursor::arrow; }
};
} // namespace

struct RollTools::Tools
{
    explicit Tools (PatternEditor& editor)
        : draw (editor)
        , select (editor)
        , lasso (editor)
        , erase (editor)
        , velocity (editor, NoteValue::velocity)
        , chance (editor, NoteValue::chance)
    {}

    DrawTool draw;
    SelectTool select;
    LassoTool lasso;
    EraseTool erase;
    ValueTool velocity, chance;
    MenuTool menu;
};

RollTools::RollTools (EditorContext& contextToUse, PatternEditor& editorToUse)
    : context (contextToUse)
    , editor (editorToUse)
    , tools (std::make_unique<Tools> (editorToUse))
    , brushBefore (contextToUse.state().brush.get())
    , brushListener (contextToUse.state().brush, [this] { followBrush(); })
    , slotListener (contextToUse.shownSlot, [this] { letGo(); })
    , drawingListener (editor.drawingChanged, [this] {
        if (! editor.isDragging())
            letGo();
    })
{}

RollTools::~RollTools() = default;

void RollTools::hover (const RollPointer& pointer)
{
    if (! isDragging())
        editor.setHoveredNote (pointer.note);
}

void RollTools::leave()
{
    if (! isDragging())
        editor.setHoveredNote (-1);
}

void RollTools::down (const RollPointer& pointer)
{
    if (isDragging() || pointer.modifiers.isMiddleButtonDown() || ! isUpToDate())
        return;

    pressed = pointer;
    hasDragged = false;
    selectionBefore = editor.getDrawing().selection;
    current = &toolFor (pointer);
    current->down (pointer);
}

void RollTools::drag (const RollPointer& pointer)
{
    if (! isDragging())
        return;

    hasDragged = hasDragged || pointer.moved.getDistanceFromOrigin() >= dragThreshold;

    if (hasDragged)
        current->drag (pointer);
}

void RollTools::up (const RollPointer& pointer)
{
    auto* tool = std::exchange (current, nullptr);

    if (tool == nullptr)
        return editor.endDrag(); // what it held has been taken away

    tool->up (pointer);

    if (hasDragged)
        return;

    if (pressed.modifiers.isPopupMenu())
    {
        if (menuAsked != nullptr)
            menuAsked (pressed);
    }
    else if (pressed.numClicks == 2)
        tool->doubleClick (pressed);
}

bool RollTools::cancel()
{
    if (std::exchange (current, nullptr) == nullptr)
        return false;

    editor.cancelDrag();
    editor.setLasso ({});
    editor.select (selectionBefore);
    return true;
}

bool RollTools::turnWheel (const RollPointer& pointer, int percent)
{
    if (isDragging() || ! editor.getDrawing().hasNote (pointer.note))
        return false;

    nudgeValue (NoteQueries::selectionOr (editor.getDrawing(), pointer.note), percent);
    return true;
}

void RollTools::nudgeValue (const NoteSelection& notes, int percent)
{
    const auto value = getValueOfBrush();

    if (const Nudged now { .value = value, .notes = notes }; std::exchange (nudged, now) != now)
        context.edits.finish();

    editor.nudge (PatternEditor::Nudge::value, nameOf (value), [&] (Drawing& drawing) {
        NoteEdits::changeEvents (drawing, notes, [&] (auto& event) {
            setValue (event, value, valueOf (event, value) + 0.01f * static_cast<float> (percent));
        });
    });
}

RollCursor RollTools::cursorAt (const RollPointer& pointer) const
{
    return current != nullptr ? current->cursorAt (pressed) : toolFor (pointer).cursorAt (pointer);
}

RollReadout RollTools::getReadout() const
{
    return current != nullptr && hasDragged ? current->getReadout() : RollReadout();
}

NoteValue RollTools::getValueOfBrush() const noexcept
{
    return context.state().brush.get() == Brush::chance ? NoteValue::chance : NoteValue::velocity;
}

RollTool& RollTools::toolFor (const RollPointer& pointer) const
{
    const auto brush = context.state().brush.get();
    const auto draws = brush == Brush::pencil || brush == Brush::clearAll;

    if (pointer.modifiers.isPopupMenu())
        return draws ? static_cast<RollTool&> (tools->erase) : tools->menu;

    if (brush == Brush::cursor)
        return tools->select;

    if (brush == Brush::velocity)
        return tools->velocity;

    if (brush == Brush::chance)
        return tools->chance;

    return pointer.modifiers.isCommandDown() ? static_cast<RollTool&> (tools->lasso) : tools->draw;
}

/** A project that is still being loaded comes in ahead of an edit; then the pointer is at something else. */
bool RollTools::isUpToDate() const
{
    const auto seen = editor.getDrawing();
    context.processor.finishPendingLoad();
    return seen.playsAs (editor.getDrawing());
}

void RollTools::followBrush()
{
    auto& brush = context.state().brush;

    if (brush.get() == Brush::clearAll)
    {
        brush.set (brushBefore);
        SlotEdits (context).eraseNotes (context.shownSlot.get());
        return;
    }

    brushBefore = brush.get();

    if (brushBefore == Brush::velocity || brushBefore == Brush::chance)
        laneValue.set (getValueOfBrush());
}
} // namespace Zn::GUI
