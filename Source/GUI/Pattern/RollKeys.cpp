#include "GUI/Pattern/RollKeys.h"

#include "GUI/Pattern/NoteClip.h"
#include "GUI/Pattern/NoteEdits.h"
#include "GUI/Pattern/NoteText.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;
using juce::KeyPress;

/** With no modifier, or with Shift where that makes no difference. */
bool isPlain (const KeyPress& key)
{
    return ! key.getModifiers().isCommandDown() && ! key.getModifiers().isAltDown()
           && ! key.getModifiers().isCtrlDown();
}

/** The way an arrow points, in columns and rows. */
std::pair<int, int> directionOf (const KeyPress& key)
{
    if (key.isKeyCode (KeyPress::leftKey))
        return { -1, 0 };

    if (key.isKeyCode (KeyPress::rightKey))
        return { 1, 0 };

    if (key.isKeyCode (KeyPress::upKey))
        return { 0, 1 };

    return { 0, key.isKeyCode (KeyPress::downKey) ? -1 : 0 };
}

char32_t letterOf (const KeyPress& key)
{
    return static_cast<char32_t> (
        juce::CharacterFunctions::toUpperCase (juce::juce_wchar (key.getKeyCode())));
}
} // namespace

RollKeys::RollKeys (EditorContext& contextToUse,
                    PatternEditor& editorToUse,
                    RollTools& toolsToUse,
                    View viewToUse)
    : context (contextToUse)
    , editor (editorToUse)
    , tools (toolsToUse)
    , view (std::move (viewToUse))
    , cell (editor, view.reveal)
{}

bool RollKeys::press (const KeyPress& key)
{
    if (key.getModifiers().isCommandDown())
        return pressCommand (key) || pressZoom (key) || pressArrow (key);

    return (isPlain (key) && (pressLetter (key) || pressOther (key))) || pressArrow (key);
}

void RollKeys::showCell()
{
    if (editor.getDrawing().selection.isEmpty())
        moveCell (0, 0);
}

bool RollKeys::escape()
{
    if (tools.cancel())
        return true;

    if (editor.getDrawing().selection.isEmpty())
        return false;

    editor.select ({});
    return true;
}

bool RollKeys::pressLetter (const KeyPress& key)
{
    if (key.getModifiers().isShiftDown())
        return false;

    switch (letterOf (key))
    {
    case U'D':
        take (Brush::pencil);
        return true;
    case U'S':
        take (Brush::cursor);
        return true;
    case U'V':
        take (Brush::velocity);
        return true;
    case U'C':
        take (Brush::chance);
        return true;
    case U'G':
        context.edits.perform ("Snap", [&state = context.state()] {
            state.snapParam.setBool (! state.snap);
            return true;
        });
        return true;
    case U'0':
        editor.perform ("Switch notes", [] (Drawing& drawing) {
            NoteEdits::toggleEnabled (drawing, NoteSelection (drawing.selection));
        });
        return true;
    default:
        return false;
    }
}

bool RollKeys::pressCommand (const KeyPress& key)
{
    if (key.getModifiers().isShiftDown() || key.getModifiers().isAltDown())
        return false;

    switch (letterOf (key))
    {
    case U'A':
        editor.select (NoteSelection::all (editor.getDrawing().numNotes()));
        return true;
    case U'C':
        NoteClip::copySelected (editor.getDrawing());
        return true;
    case U'X':
        NoteClip::copySelected (editor.getDrawing());
        editor.perform ("Cut notes", NoteEdits::eraseSelected);
        return true;
    case U'V':
        editor.perform ("Paste notes", [this] (Drawing& drawing) {
            NoteClip::paste (drawing, editor.getGrid(), view.pasteTime());
        });
        return true;
    case U'D':
        editor.perform ("Duplicate notes", [this] (Drawing& drawing) {
            NoteEdits::duplicateBehind (drawing, editor.getGrid());
        });
        return true;
    default:
        return false;
    }
}

bool RollKeys::pressZoom (const KeyPress& key)
{
    if (key.getModifiers().isAltDown())
        return false;

    constexpr auto step = 1.25;
    const auto character = letterOf (key);

    if (character == U'0')
        view.fit();
    else if (character == U'+' || character == U'=' || key.isKeyCode (KeyPress::numberPadAdd))
        view.zoom (step);
    else if (character == U'-' || key.isKeyCode (KeyPress::numberPadSubtract))
        view.zoom (1.0 / step);
    else
        return false;

    return true;
}

bool RollKeys::pressArrow (const KeyPress& key)
{
    const auto [columns, rows] = directionOf (key);
    const auto modifiers = key.getModifiers();

    if (columns == 0 && rows == 0)
        return false;

    if (modifiers.isCommandDown() && modifiers.isShiftDown())
        return false;

    if (modifiers.isAltDown())
    {
        if (rows != 0)
            tools.nudgeValue (NoteSelection (editor.getDrawing().selection),
                              rows * (modifiers.isShiftDown() ? 10 : 1));

        return rows != 0;
    }

    if (modifiers.isCommandDown())
        columns != 0 ? moveByBeats (columns) : moveSelection (0, rows * view.rowsPerCycle());
    else if (modifiers.isShiftDown() && columns != 0)
        lengthen (columns);
    else
        moveSelection (columns, rows);

    return true;
}

bool RollKeys::pressOther (const KeyPress& key)
{
    if (key.isKeyCode (KeyPress::deleteKey) || key.isKeyCode (KeyPress::backspaceKey))
        editor.perform ("Erase notes", NoteEdits::eraseSelected);
    else if (key.isKeyCode (KeyPress::tabKey))
        selectNext (key.getModifiers().isShiftDown());
    else if (key.isKeyCode (KeyPress::returnKey))
        editCell();
    else
        return false;

    return true;
}

void RollKeys::moveSelection (int columns, int rows)
{
    if (editor.getDrawing().selection.isEmpty())
        return moveCell (columns, rows);

    const auto grid = editor.getGrid();
    editor.nudge (PatternEditor::Nudge::move, "Move notes", [&] (Drawing& drawing) {
        NoteEdits::moveSelected (drawing, grid, -1, columns * grid.column(), rows);
    });

    reveal (editor.getDrawing().selection.first());
}

void RollKeys::moveByBeats (int beats)
{
    const auto& drawing = editor.getDrawing();
    const auto quarters = drawing.time.length() * (drawing.multiply ? drawing.grid : 1);
    const auto columns = quarters > 0.0 ? juce::roundToInt (drawing.grid / quarters) : 1;
    moveSelection (beats * std::clamp (columns, 1, drawing.grid), 0);
}

void RollKeys::moveCell (int columns, int rows)
{
    cell.move (columns, rows);
    tellOfCell();
}

void RollKeys::editCell()
{
    cell.edit();
    tellOfCell();
}

void RollKeys::tellOfCell() const
{
    const auto& place = editor.cellCursor.get();

    if (! place)
        return;

    const auto& drawing = editor.getDrawing();
    const auto beats = RollBeats::of (drawing);
    const auto notes = cell.notesThere();
    const auto start = place->column * editor.getGrid().column();

    context.overlay.announce (notes.isEmpty() ? placeText (place->row, start, view.names(), beats)
                                              : noteText (drawing.note (notes.first()), view.names(), beats));
}

void RollKeys::lengthen (int columns)
{
    const auto grid = editor.getGrid();
    editor.nudge (PatternEditor::Nudge::length, "Lengthen notes", [&] (Drawing& drawing) {
        NoteEdits::lengthenSelected (drawing, grid, -1, columns * grid.column());
    });
}

void RollKeys::selectNext (bool backwards)
{
    const auto& drawing = editor.getDrawing();
    const auto next = NoteQueries::nextNote (drawing, drawing.selection.first(), backwards);

    if (next < 0)
        return;

    editor.select ({ next });
    reveal (next);
}

void RollKeys::take (Brush brush)
{
    context.state().brush.set (brush);
}

void RollKeys::reveal (int note)
{
    const auto& drawing = editor.getDrawing();

    if (! drawing.hasNote (note))
        return;

    const auto& shown = drawing.note (note);
    view.reveal (shown.time.start, shown.time.end(), shown.event.noteNum);
    context.overlay.announce (noteText (shown, view.names(), RollBeats::of (drawing)));
}
} // namespace Zn::GUI
