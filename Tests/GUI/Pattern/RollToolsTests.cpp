#include "GUI/Pattern/RollTools.h"

#include "GUI/Support/BareEditor.h"
#include "GUI/Support/Pen.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;
using Tests::note;
using Tests::Pen;
using Mods = juce::ModifierKeys;

constexpr auto shift = int (Mods::shiftModifier), ctrl = int (Mods::commandModifier),
               alt = int (Mods::altModifier), right = int (Mods::rightButtonModifier);

/** The drawing in columns of 16: "60 @0+1*" is row 60, column 0, one column long, and selected. */
std::string inColumns (const Drawing& drawing)
{
    std::ostringstream text;

    for (auto i = 0; i < drawing.numNotes(); ++i)
    {
        const auto& each = drawing.note (i);
        text << (i > 0 ? ", " : "") << (each.enabled ? "" : "off ") << each.event.noteNum << " @"
             << 16.0 * each.time.start << "+" << 16.0 * each.time.length
             << (drawing.selection.contains (i) ? "*" : "");
    }

    return text.str();
}

struct RollToolsTest : testing::Test
{
    Tests::BareEditor bare;
    PatternEditor editor { bare.context };
    RollTools tools { bare.context, editor };
    Pen pen { editor, tools };

    void start (Brush brush, NoteSelection selection = {})
    {
        bare.getState().brush.set (brush);
        bare.set ({ note (60, 0.0, 0.0625), note (62, 0.25, 0.125) });
        bare.slot().pattern.gate = 1.0;
        bare.getState().patterns.rebuild();
        editor.select (selection);
    }
};

struct Gesture
{
    const char* what;
    Brush brush;
    NoteSelection selection;
    int modifiers;
    RollPoint from, to;
    std::string result;
};

TEST_F (RollToolsTest, DoWhatTheTableOfToolsSays)
{
    const auto at = Pen::cell;
    const auto end = [] (double time, int row) { return RollPoint { time / 16.0 - 0.002, row + 0.5 }; };
    const std::string untouched = "60 @0+1, 62 @4+2";

    const std::vector<Gesture> table {
        { "draw on empty", Brush::pencil, { 0 }, 0, at (8, 70), at (8, 70), untouched + ", 70 @8+1" },
        { "draw and lengthen", Brush::pencil, {}, 0, at (8, 70), at (10, 75), untouched + ", 70 @8+3" },
        { "lengthen to the end", Brush::pencil, {}, 0, at (14, 70), at (20, 70), untouched + ", 70 @14+2" },
        { "draw a line",
          Brush::pencil,
          {},
          shift,
          at (8, 70),
          at (10, 72),
          untouched + ", 70 @8+1, 71 @9+1, 72 @10+1" },
        { "erase by a click", Brush::pencil, {}, 0, at (0, 60), at (0, 60), "62 @4+2" },
        { "switch off", Brush::pencil, {}, alt, at (0, 60), at (0, 60), "off 60 @0+1, 62 @4+2" },
        { "move one", Brush::pencil, {}, 0, at (0, 60), at (3, 61), "61 @3+1, 62 @4+2" },
        { "erase what is crossed", Brush::pencil, {}, right, at (0, 60), at (6, 63), "" },
        { "lasso with the pencil", Brush::pencil, {}, ctrl, at (3, 63), at (5, 61), "60 @0+1, 62 @4+2*" },
        { "click on empty", Brush::cursor, { 0 }, 0, at (8, 70), at (8, 70), untouched },
        { "lasso", Brush::cursor, { 0 }, 0, at (3, 70), at (4, 62), "60 @0+1, 62 @4+2*" },
        { "add by lasso", Brush::cursor, { 0 }, shift, at (3, 70), at (4, 62), "60 @0+1*, 62 @4+2*" },
        { "select", Brush::cursor, { 1 }, 0, at (0, 60), at (0, 60), "60 @0+1*, 62 @4+2" },
        { "add", Brush::cursor, { 1 }, shift, at (0, 60), at (0, 60), "60 @0+1*, 62 @4+2*" },
        { "remove", Brush::cursor, { 0, 1 }, shift, at (0, 60), at (0, 60), "60 @0+1, 62 @4+2*" },
        { "move all", Brush::cursor, { 0, 1 }, 0, at (0, 60), at (2, 63), "63 @2+1*, 65 @6+2*" },
        { "keep the shape at the edge",
          Brush::cursor,
          { 0, 1 },
          0,
          at (4, 62),
          at (0, 0),
          "0 @0+1*, 2 @4+2*" },
        { "and at the other",
          Brush::cursor,
          { 0, 1 },
          0,
          at (0, 60),
          at (30, 500),
          "125 @10+1*, 127 @14+2*" },
        { "keep to one axis", Brush::cursor, {}, shift, at (0, 60), at (2, 61), "60 @2+1*, 62 @4+2" },
        { "copy", Brush::cursor, {}, ctrl, at (0, 60), at (1, 61), untouched + ", 61 @1+1*" },
        { "copy to the same place", Brush::cursor, {}, ctrl, at (0, 60), at (0.3, 60), "60 @0+1*, 62 @4+2" },
        { "lengthen all", Brush::cursor, { 0, 1 }, 0, end (1, 60), end (3, 60), "60 @0+3*, 62 @4+4*" },
        { "no shorter than a column",
          Brush::cursor,
          { 0, 1 },
          0,
          end (6, 62),
          end (0, 62),
          "60 @0+1*, 62 @4+1*" },
        { "free with Alt", Brush::cursor, {}, alt, at (0, 60), { 1.0 / 16.0, 60.5 }, "60 @0.5+1*, 62 @4+2" },
        { "right button elsewhere", Brush::cursor, {}, right, at (0, 60), at (6, 63), untouched },
    };

    for (const auto& gesture : table)
    {
        SCOPED_TRACE (gesture.what);
        start (gesture.brush, gesture.selection);
        gesture.from == gesture.to ? pen.click (gesture.from, gesture.modifiers)
                                   : pen.drag (gesture.from, gesture.to, gesture.modifiers);
        EXPECT_EQ (inColumns (editor.getDrawing()), gesture.result);
    }
}

TEST_F (RollToolsTest, DoubleClickAddsErasesAndResets)
{
    start (Brush::cursor);
    pen.click (Pen::cell (0, 60), 0, 2);
    pen.click (Pen::cell (9, 70), 0, 2);
    EXPECT_EQ (inColumns (editor.getDrawing()), "62 @4+2, 70 @9+1*");

    for (const auto brush : { Brush::velocity, Brush::chance })
    {
        bare.getState().brush.set (brush);
        pen.drag (Pen::cell (9, 70), { 9.5 / 16.0, 70.5 - 30.0 / Pen::rowHeight });
        pen.click (Pen::cell (9, 70), 0, 2);
    }

    EXPECT_EQ (editor.getDrawing().notes.back().event, note (70, 0.0, 0.0).event);
}

TEST_F (RollToolsTest, PaintVelocityAndChance)
{
    const auto down = [] (RollPoint from, double pixels) {
        return RollPoint { from.time, from.row - pixels / Pen::rowHeight };
    };

    start (Brush::velocity, { 0, 1 });
    pen.drag (Pen::cell (0, 60), down (Pen::cell (0, 60), 75.0));
    EXPECT_FLOAT_EQ (editor.getDrawing().note (0).event.velocity, 0.3f) << "150 pixels are all of it";
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.velocity, 0.3f) << "with the selection";

    bare.getState().brush.set (Brush::chance);
    editor.select ({});
    pen.drag (Pen::cell (0, 60), down (Pen::cell (0, 60), 60.0));
    pen.drag (Pen::cell (0, 60), { 0.3, 62.5 }); // rather along than upwards
    EXPECT_FLOAT_EQ (editor.getDrawing().note (0).event.chance, 0.6f);
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.chance, 0.6f) << "painted with what was pressed";

    pen.press (Pen::cell (4, 62));
    pen.moveTo (down (Pen::cell (4, 62), 30.0));
    EXPECT_FALSE (tools.scrolls()) << "the note would go away";
    EXPECT_TRUE (tools.cancel());

    pen.drag (Pen::cell (4, 62), down (Pen::cell (4, 62), -30.0), alt);
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.spreadHigh, 0.2f);
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.spreadLow, -0.2f);
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.chance, 0.6f);
}

TEST_F (RollToolsTest, BrushesSwitchTheLaneAndClearAllIsNoneOfThem)
{
    start (Brush::chance);
    EXPECT_EQ (tools.laneValue.get(), NoteValue::chance);

    bare.getState().brush.set (Brush::clearAll);
    EXPECT_EQ (bare.getState().brush.get(), Brush::chance);
    EXPECT_TRUE (editor.getDrawing().notes.empty());
    EXPECT_EQ (bare.overlay.message, "Pattern cleared");

    bare.edits.undo();
    EXPECT_EQ (inColumns (editor.getDrawing()), "60 @0+1, 62 @4+2");
}

TEST_F (RollToolsTest, LetGoWhenThePatternIsTakenAway)
{
    start (Brush::cursor);
    bare.set ({ note (61, 0.25, 0.125) }, 1);
    pen.press (Pen::cell (3, 70));
    pen.moveTo (Pen::cell (4, 62));
    bare.shownSlot.set (1);
    pen.moveTo (Pen::cell (4, 61));
    pen.release();

    EXPECT_TRUE (editor.getDrawing().selection.isEmpty());
    EXPECT_FALSE (editor.getLasso());

    // A note in the hand that is no longer there leaves no step open for others to join.
    pen.press (Pen::cell (4, 61));
    pen.moveTo (Pen::cell (6, 61));
    bare.set ({}, 1);
    pen.release();
    bare.edits.perform ("Else", [] { return true; });
    EXPECT_TRUE (bare.edits.getUndo().canUndo());
}

TEST_F (RollToolsTest, RightClickAsksForAMenuAndTurnsOfTheWheelAreOneStep)
{
    start (Brush::pencil);
    auto asked = -2;
    tools.menuAsked = [&] (const RollPointer& pointer) { asked = pointer.note; };
    pen.click (Pen::cell (4, 62), right);
    EXPECT_EQ (asked, 1);

    const auto before = bare.document();

    for (auto turn = 0; turn < 3; ++turn)
        EXPECT_TRUE (tools.turnWheel (pen.pointer (Pen::cell (4, 62)), -1));

    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.velocity, 0.77f);
    tools.turnWheel (pen.pointer (Pen::cell (0, 60)), -1);
    bare.edits.undo();
    EXPECT_NE (bare.document(), before) << "another note, another step";
    bare.edits.undo();
    EXPECT_EQ (bare.document(), before);
}
} // namespace
} // namespace Zn::GUI
