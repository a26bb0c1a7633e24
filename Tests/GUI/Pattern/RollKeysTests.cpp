#include "GUI/Pattern/RollKeys.h"

#include "GUI/Pattern/LaneTool.h"
#include "GUI/Pattern/NoteClip.h"
#include "GUI/Pattern/NoteEdits.h"
#include "GUI/Pattern/RollMenus.h"
#include "GUI/Support/BareEditor.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::Brush;
using Tests::note;

struct RollKeysTest : testing::Test
{
    Tests::BareEditor bare;
    PatternEditor editor { bare.context };
    RollTools tools { bare.context, editor };
    RowNames names;
    RollKeys keys { bare.context,
                    editor,
                    tools,
                    { .rowsPerCycle = [] { return 3; },
                      .pasteTime = [] { return 0.53; },
                      .zoom = [] (double) {},
                      .fit = [] {},
                      .reveal = [] (double, double, int) {},
                      .names = [this]() -> const RowNames& { return names; } } };

    void press (const juce::String& description)
    {
        EXPECT_TRUE (keys.press (juce::KeyPress::createFromDescription (description))) << description;
    }

    void start (NoteSelection selection)
    {
        bare.set ({ note (60, 0.0, 0.0625), note (62, 0.25, 0.125) });
        editor.select (selection);
    }

    std::string text() const { return Tests::asText (editor.getDrawing().notes); }
};
} // namespace

TEST_F (RollKeysTest, EditTheSelection)
{
    struct Case
    {
        std::vector<const char*> keys;
        std::string result;
    };

    const std::vector<Case> table {
        { { "cursor right", "cursor up" }, "61 @0.0625+0.0625, 63 @0.3125+0.125" },
        { { "ctrl + cursor right", "ctrl + cursor down" }, "57 @0.25+0.0625, 59 @0.5+0.125" },
        { { "cursor left" }, "60 @0+0.0625, 62 @0.25+0.125" },
        { { "shift + cursor right" }, "60 @0+0.125, 62 @0.25+0.1875" },
        { { "shift + cursor left" }, "60 @0+0.0625, 62 @0.25+0.0625" },
        { { "delete" }, "" },
        { { "ctrl + D" }, "60 @0+0.0625, 62 @0.25+0.125, 60 @0.375+0.0625, 62 @0.625+0.125" },
        { { "ctrl + X", "ctrl + V" }, "60 @0.5+0.0625, 62 @0.75+0.125" },
        { { "ctrl + C", "ctrl + A", "backspace", "ctrl + V" }, "60 @0.5+0.0625, 62 @0.75+0.125" },
    };

    for (const auto& [pressed, result] : table)
    {
        start ({ 0, 1 });

        for (const auto* key : pressed)
            press (key);

        EXPECT_EQ (text(), result) << pressed.front();
    }

    start ({ 1 });
    press ("alt + cursor down");
    press ("shift + alt + cursor down");
    press ("0");
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.velocity, 0.69f);
    EXPECT_FALSE (editor.getDrawing().note (1).enabled);
    EXPECT_TRUE (editor.getDrawing().note (0).enabled);

    bare.set ({ note (60, 0.0, 0.03125) });
    editor.select ({ 0 });
    press ("shift + cursor left");
    EXPECT_EQ (text(), "60 @0+0.03125") << "no longer than it was";
    press ("shift + cursor right");
    EXPECT_EQ (text(), "60 @0+0.0625") << "to the next line";
}

TEST_F (RollKeysTest, QuickPressesOfOneKindAreOneStep)
{
    start ({ 0 });
    const auto before = bare.document();

    for (const auto* key : { "cursor right", "cursor right", "cursor up" })
        press (key);

    const auto moved = bare.document();
    press ("shift + cursor right");
    bare.edits.undo();
    EXPECT_EQ (bare.document(), moved);
    bare.edits.undo();
    EXPECT_EQ (bare.document(), before);
}

TEST_F (RollKeysTest, TheCellCursorAddsAndErasesWhenNothingIsSelected)
{
    for (const auto* key : { "cursor up", "cursor right", "cursor up", "return" })
        press (key);

    EXPECT_EQ (text(), "65 @0.0625+0.06125") << "the first key only shows it";
    press ("tab");
    EXPECT_EQ (editor.getDrawing().selection, NoteSelection { 0 });
    press ("return");
    EXPECT_TRUE (editor.getDrawing().selection.isEmpty()) << "which hides the cursor";
    press ("return");
    EXPECT_EQ (text(), "");
    EXPECT_FALSE (keys.escape());
}

TEST_F (RollKeysTest, TheCellCursorMeansWhatLiesInItsCellOnly)
{
    bare.set ({ note (64, 0.0, 0.0625), note (64, 0.0625, 0.01), note (64, 0.125, 0.0625) });
    editor.cellCursor.set (RollCell { .column = 1, .row = 64 });
    press ("return");
    EXPECT_EQ (text(), "64 @0+0.0625, 64 @0.125+0.0625");

    editor.cellCursor.set (RollCell { .column = 15, .row = 64 });
    editor.perform ("Grid", [] (Drawing& drawing) { drawing.grid = 4; });
    press ("return");
    EXPECT_EQ (editor.getDrawing().note (2).time.start, 0.75) << "in the last column that there is";
}

TEST_F (RollKeysTest, TellWhatTheyReach)
{
    start ({});

    for (const auto* key : { "cursor up", "cursor down", "tab", "cursor right" })
        press (key);

    EXPECT_EQ (bare.overlay.announced.joinIntoString ("\n"),
               "Row 0, beat 1.1, empty\n"
               "Row -1, beat 1.1, empty\n"
               "Row -4, beat 1.1, length 1, velocity 80 %, chance 100 %\n"
               "Row -4, beat 1.2, length 1, velocity 80 %, chance 100 %");
}

TEST_F (RollKeysTest, LettersTakeToolsAndOthersAreLeftAlone)
{
    press ("S");
    EXPECT_EQ (bare.getState().brush.get(), Brush::cursor);
    press ("G");
    EXPECT_FALSE (bare.getState().snap);

    for (const auto* key : { "spacebar", "1", "ctrl + Z", "ctrl + shift + C", "F1", "alt + D", "x" })
        EXPECT_FALSE (keys.press (juce::KeyPress::createFromDescription (key))) << key;
}

TEST_F (RollKeysTest, NotesKeepTheirColumnsInAnotherGrid)
{
    start ({ 0, 1 });
    NoteClip::copySelected (editor.getDrawing());

    auto longer = Drawing::of (Sequencer::PatternSlot());
    longer.grid = 32;
    NoteClip::paste (longer, { .columns = 32 }, 0.99, 64);
    EXPECT_EQ (Tests::asText (longer.notes), "64 @0.8125+0.03125, 66 @0.9375+0.0625")
        << "as far as there is room";
    EXPECT_EQ (longer.selection, NoteSelection::all (2));

    auto shorter = Drawing::of (Sequencer::PatternSlot());
    shorter.grid = 3;
    NoteClip::paste (shorter, { .columns = 3 }, 0.0);
    EXPECT_EQ (shorter.numNotes(), 1) << "what has no room is left out";
}

TEST_F (RollKeysTest, TheMenuKeyOffersAllMenusInOne)
{
    RollMenus menus (bare.context, editor);
    juce::Component roll;
    start ({ 1 });

    for (const auto* line : { "Disable", "Row up", "Shift right one column" })
    {
        menus.showForKeys (roll, roll);
        bare.overlay.choose (line);
    }

    EXPECT_EQ (text(), "60 @0.0625+0.0625, 63 @0.3125+0.125");
    EXPECT_FALSE (editor.getDrawing().note (1).enabled);

    editor.select ({});
    editor.cellCursor.set (RollCell { .column = 2, .row = 60 });

    for (const auto* line : { "Erase row", "Select all" })
    {
        menus.showForKeys (roll, roll);
        bare.overlay.choose (line);
    }

    EXPECT_EQ (editor.getDrawing().selection, NoteSelection::all (1));
}

TEST_F (RollKeysTest, MenusActOnWhatTheyWereOpenedFor)
{
    RollMenus menus (bare.context, editor);
    juce::Component roll;
    start ({ 0 });

    editor.perform ("Switch", [] (Drawing& drawing) { NoteEdits::toggleEnabled (drawing, { 0 }); });
    editor.select ({ 0, 1 });
    menus.showForRoll ({ .at = { 0.3, 62.5 }, .note = 1 });
    bare.overlay.choose ("Enable"); // as one of them is off
    EXPECT_TRUE (editor.getDrawing().note (0).enabled && editor.getDrawing().note (1).enabled);

    editor.select ({ 0 });
    menus.showForRoll ({ .at = { 0.3, 62.5 }, .note = 1 });
    bare.overlay.choose ("40 %");
    EXPECT_FLOAT_EQ (editor.getDrawing().note (1).event.velocity, 0.4f);
    EXPECT_FLOAT_EQ (editor.getDrawing().note (0).event.velocity, 0.8f);

    bare.overlay.choose ("Cut");
    EXPECT_EQ (text(), "60 @0+0.0625");
    menus.showForRoll ({ .at = { 0.7, 70.5 } });
    bare.overlay.choose ("Paste here");
    EXPECT_EQ (text(), "60 @0+0.0625, 70 @0.6875+0.125");

    bare.getState().snap = false;
    bare.set ({ note (60, 0.02, 0.125) });
    editor.select ({ 0 });
    menus.showForRoll ({ .at = { 0.03, 60.5 }, .note = 0 });
    bare.overlay.choose ("Cut");
    menus.showForRoll ({ .at = { 0.5, 70.5 } });
    bare.overlay.choose ("Paste here");
    EXPECT_EQ (text(), "70 @0.5+0.125") << "at the pointer, as nothing snaps";
    bare.getState().snap = true;
    bare.set ({ note (60, 0.0, 0.0625), note (70, 0.6875, 0.125) });

    menus.showForRow (70);
    bare.overlay.choose ("Row down");
    EXPECT_EQ (text(), "60 @0+0.0625, 69 @0.6875+0.125");

    menus.showForRuler (roll);
    bare.overlay.choose (juce::String::fromUTF8 ("Scale velocities…"));
    EXPECT_FALSE (bare.overlay.accept ("loud"));
    EXPECT_FALSE (bare.overlay.accept ("x2"));
    EXPECT_TRUE (bare.overlay.accept ("50 %"));
    EXPECT_FLOAT_EQ (editor.getDrawing().note (0).event.velocity, 0.4f);
}

TEST_F (RollKeysTest, TheLanePaintsRampsAndKeepsProportions)
{
    LaneTool lane (editor, tools.laneValue);
    const auto velocity = [&] (int index) { return editor.getDrawing().note (index).event.velocity; };
    bare.set (Tests::steps ("xxxx"));

    lane.down ({ .time = 0.01, .value = 0.2f, .reach = 0.02 });
    lane.drag ({ .time = 0.51, .value = 1.2f, .reach = 0.02 });
    lane.up ({});
    EXPECT_NEAR (velocity (0), 0.2f, 1.0e-6);
    EXPECT_NEAR (velocity (1), 0.68f, 1.0e-6);
    EXPECT_NEAR (velocity (2), 1.0f, 0.03) << "limited";
    EXPECT_FLOAT_EQ (velocity (3), 0.8f);

    lane.down (
        { .time = 0.75, .value = 0.4f, .reach = 0.02, .modifiers = juce::ModifierKeys::shiftModifier });
    lane.drag ({ .time = 0.1, .value = 0.9f, .reach = 0.02 });
    lane.drag ({ .time = 0.25, .value = 0.8f, .reach = 0.02 });
    lane.up ({});
    EXPECT_NEAR (velocity (1), 0.8f, 1.0e-6) << "the ramp that the hand ended with";
    EXPECT_NEAR (velocity (2), 0.6f, 1.0e-6);
    EXPECT_NEAR (velocity (3), 0.4f, 1.0e-6);

    editor.select ({ 1, 3 });
    const auto before = bare.document();
    lane.down ({ .time = 0.25, .value = 0.8f, .note = 1 });
    lane.drag ({ .time = 0.25, .value = 0.4f, .note = 1 });
    lane.up ({});
    EXPECT_NEAR (velocity (1), 0.4f, 1.0e-6);
    EXPECT_NEAR (velocity (3), 0.2f, 1.0e-6) << "in proportion";
    bare.edits.undo();
    EXPECT_EQ (bare.document(), before);

    lane.down ({ .value = 0.8f, .note = 2, .modifiers = juce::ModifierKeys::altModifier });
    lane.drag ({ .value = 0.7f, .note = 2 });
    EXPECT_NEAR (editor.getDrawing().note (2).event.spreadHigh, 0.1f, 1.0e-6);
    EXPECT_TRUE (lane.cancel());
    EXPECT_EQ (bare.document(), before);
}
} // namespace Zn::GUI
