#include "GUI/Pattern/SlotEdits.h"

#include "GUI/Pattern/Clipboard.h"
#include "GUI/Pattern/PatternParams.h"
#include "GUI/Support/BareEditor.h"
#include "GUI/Widgets/SlotExport.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

#include <set>

namespace Zn::GUI
{
namespace
{
struct SlotEditing : testing::Test
{
    Tests::BareEditor bare;
    SlotEdits edits { bare.context };

    SlotEditing()
    {
        bare.set ({ Tests::note (60, 0.0, 0.1), Tests::note (64, 0.25, 0.1), Tests::note (67, 0.25, 0.2) });
        bare.set (Tests::steps ("x-x."), 1);
        bare.slot (1).multiply = true;
        bare.slot (1).pattern.grid = 7;
        bare.getState().patterns.rebuild();
    }
};
} // namespace

TEST_F (SlotEditing, EachIsOneStepThatComesBack)
{
    const auto fresh = bare.document (7), first = bare.document (0), second = bare.document (1);

    struct Case
    {
        const char* what;
        std::function<void()> edit;
        std::string firstThen, secondThen;
    };

    edits.copyToClipboard (0);

    const std::vector<Case> cases {
        { "copy", [&] { edits.copyTo (0, 1); }, first, first },
        { "swap", [&] { edits.swap (0, 1); }, second, first },
        { "clear", [&] { edits.clear (1); }, first, fresh },
        { "paste", [&] { edits.paste (1); }, first, first },
    };

    for (const auto& [what, edit, firstThen, secondThen] : cases)
    {
        edit();
        EXPECT_EQ (bare.document (0), firstThen) << what;
        EXPECT_EQ (bare.document (1), secondThen) << what;
        bare.edits.undo();
        EXPECT_EQ (bare.document (0), first) << what;
        EXPECT_EQ (bare.document (1), second) << what;
        EXPECT_FALSE (bare.edits.getUndo().canUndo()) << what;
    }

    edits.copyTo (5, 6); // alike
    EXPECT_FALSE (bare.edits.getUndo().canUndo());
}

TEST_F (SlotEditing, AVariationKeepsTheRhythmAndTheRowsInUse)
{
    edits.copyToClipboard (0);
    const auto original = bare.slot (0).pattern.steps;

    for (auto seed = 0u; seed < 20u; ++seed)
    {
        edits.pasteAsVariation (2, seed);
        const auto varied = bare.slot (2).pattern.steps;
        ASSERT_EQ (varied.size(), original.size());
        std::multiset<int> rows;

        for (std::size_t i = 0; i < varied.size(); ++i)
        {
            EXPECT_EQ (varied[i].time, original[i].time);
            EXPECT_NE (varied[i].event.noteNum, original[i].event.noteNum);
            rows.insert (varied[i].event.noteNum);
        }

        EXPECT_EQ (rows, (std::multiset<int> { 60, 64, 67 }));
        edits.pasteAsVariation (3, seed);
        EXPECT_EQ (bare.document (3), bare.document (2)) << "the same seed";
    }
}

TEST_F (SlotEditing, TextFromElsewhereIsNoSlot)
{
    for (const auto* text :
         { "", "Hello", "{", "{\"Slot\": 3}", "{\"Slot\": {}}", "[1, 2]", "{\"Notes\": {}}" })
    {
        Clipboard::setText (text);
        EXPECT_FALSE (edits.canPaste()) << text;
        edits.paste (0);
    }

    EXPECT_FALSE (edits.copyTo (4, 5)) << "as empty as the other";
    EXPECT_FALSE (bare.edits.getUndo().canUndo());
}

TEST_F (SlotEditing, ParametersBelongToTheShownSlot)
{
    const PatternParams params (bare.context);

    EXPECT_EQ (params.grid->getInt(), 16);
    bare.shownSlot.set (1);
    EXPECT_EQ (params.grid->getInt(), 7);

    params.grid->setInt (12);
    params.noteLength->setFromText ("75 %");
    params.timeNum->setInt (3);
    params.timeDenum->setFromText ("16");
    params.multiply->setBool (false);

    EXPECT_EQ (bare.slot (0).pattern.grid, 16);
    EXPECT_EQ (bare.slot (1).pattern.grid, 12);
    EXPECT_DOUBLE_EQ (bare.slot (1).pattern.gate, 0.75);
    EXPECT_EQ (params.noteLength->getCurrentText(), "75 %");
    EXPECT_DOUBLE_EQ (bare.slot (1).length(), 0.75);
    EXPECT_DOUBLE_EQ (bare.getState().patterns.getPatternData()->slots[1].playLength, 0.75);

    for (auto step = 0; step < 5; ++step)
        bare.edits.undo();

    EXPECT_EQ (params.grid->getInt(), 7);
    EXPECT_FALSE (bare.edits.getUndo().canUndo()) << "one step each";
}

TEST_F (SlotEditing, ADragOfAnEmptyPatternSaysWhyThereIsNoFile)
{
    SlotExport (bare.context).drag (6, bare.root);
    EXPECT_EQ (bare.overlay.message, "This pattern is empty");
}
} // namespace Zn::GUI
