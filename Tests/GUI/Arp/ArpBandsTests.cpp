#include "GUI/Arp/ArpParams.h"
#include "GUI/Arp/BpmField.h"
#include "GUI/Arp/PlayButton.h"
#include "GUI/Arp/QuantizeParam.h"
#include "GUI/Support/ControlBench.h"
#include "GUI/Support/OpenEditor.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Label.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using InCharge = Sequencer::PlayHead::Control;
using Audio::Plugins::Vornel::Brush;

ValueControl& valueOf (Tests::OpenEditor& editor, const char* element)
{
    return editor.find<ValueControl> (element);
}
} // namespace

TEST (ArpBands, SwitchesPatternsAtOnceUntilALengthIsChosen)
{
    Tests::OpenEditor editor;
    auto& state = editor.getState();
    auto& quantize = valueOf (editor, "Quantize");
    auto numTold = 0;
    const Events::Listener project { state.projectChanged, [&] { ++numTold; } };

    auto menu = quantize.getParameter()->getMenuChoices();
    ASSERT_EQ (menu.subItems.back().text, "Switch at once");
    menu.subItems.back().choose();
    editor.poll();

    EXPECT_FALSE (state.liveSlots->enable);
    EXPECT_EQ (quantize.getShownText(), "now");
    EXPECT_EQ (numTold, 1);
    EXPECT_TRUE (menu.subItems.back().isTicked());
    EXPECT_FALSE (
        std::any_of (menu.subItems.begin(), menu.subItems.end() - 1, [] (auto& i) { return i.isTicked(); }));

    editor.page.getContext().edits.undo();
    EXPECT_TRUE (state.liveSlots->enable);
    editor.page.getContext().edits.redo();

    menu.subItems.front().choose();
    EXPECT_TRUE (state.liveSlots->enable);
    EXPECT_NE (quantize.getShownText(), "now");

    menu.subItems.back().choose();
    quantize.stepBy (1); // a turn of the wheel
    EXPECT_TRUE (state.liveSlots->enable);
}

TEST (ArpBands, TellsTheSwingBesideThePointerAndLetsItsTextAndTheRangesBeTyped)
{
    Tests::ControlBench bench;
    const auto params = bench.make<ArpParams>();
    const auto find = [&params](const char* element) -> auto&
    {
        return Tests::Hand::find<juce::Component> (*params, element);
    };

    auto& swing = find ("Swing");
    const auto event = Tests::Hand::mouseEvent (swing, { 40, 5 }, { 9, 5 }, Tests::Hand::leftButton, 1, true);
    swing.mouseDown (event.withNewPosition (juce::Point { 9, 5 }));
    swing.mouseDrag (event);
    EXPECT_NE (bench.overlay.readout, "");
    swing.mouseUp (event);

    for (const auto& [text, control] :
         { std::pair ("SwingValue", "Swing"), std::pair ("OctaveRangeValue", "OctaveRangeLow") })
    {
        Tests::Hand::doubleClick (find (text), { 3, 3 });
        EXPECT_EQ (bench.overlay.enteredOver, control);
    }
}

TEST (ArpBands, NamesTheRangeOfOctavesAsItIsNow)
{
    Tests::ControlBench bench;
    const auto params = bench.make<ArpParams>();
    const auto& range = Tests::Hand::find<Label> (*params, "OctaveRangeValue");
    auto& state = bench.getState();
    auto settings = bench.settings.get();

    const std::pair<std::function<void()>, const char*> rows[] {
        { [] {}, "All" },
        { [&] { state.lowestOctave.setInt (6); }, "C4B8" },
        { [&] { state.highestOctave.setInt (9); }, "C4B6" },
        { [&] { bench.settings.set ((settings.middleC = 4, settings)); }, "C5B7" },
    };

    for (const auto& [change, text] : rows)
    {
        change();
        bench.polls.callListeners();
        EXPECT_EQ (range.getText().retainCharacters ("ABCl012345678"), text);
    }
}

TEST (ArpBands, FollowsTheKeyInOneStepOfUndo)
{
    Tests::OpenEditor editor;
    auto& state = editor.getState();

    EXPECT_TRUE (editor.find ("Transpose").isVisible());
    valueOf (editor, "KeyMode").stepBy (1);
    editor.poll();

    EXPECT_TRUE (state.keyMode);
    EXPECT_FALSE (editor.find ("Transpose").isVisible());
    EXPECT_TRUE (editor.find ("Key").isVisible());

    editor.page.getContext().edits.undo();
    EXPECT_FALSE (state.keyMode);
}

TEST (ArpBands, TakesATempoByHandUnlessTheHostGivesIt)
{
    Tests::OpenEditor editor;
    auto& state = editor.getState();
    auto& bpm = editor.find<BpmField> ("Bpm");

    EXPECT_TRUE (bpm.setFromTyped ("124"));
    EXPECT_FLOAT_EQ (state.bpm.getFloat(), 124.0f);

    Tests::Hand::drag (bpm, { { 10.0f, 10.0f }, { 10.0f, -20.0f } });
    EXPECT_GT (state.bpm.getFloat(), 124.0f);

    const auto before = state.bpm.getFloat();
    state.playHead->hasHostTempo = true;
    editor.poll();
    Tests::Hand::drag (bpm, { { 10.0f, 10.0f }, { 10.0f, -20.0f } });
    EXPECT_FLOAT_EQ (state.bpm.getFloat(), before);
    EXPECT_EQ (bpm.getTooltipText().help, "The host gives the tempo.");
}

TEST (ArpBands, FindsATappedTempo)
{
    TapTempo tapping;
    EXPECT_FALSE (tapping.tap (10.0));
    EXPECT_NEAR (*tapping.tap (10.5), 120.0, 1e-9);
    EXPECT_NEAR (*tapping.tap (11.02), 60.0 * 2.0 / 1.02, 1e-9);
    EXPECT_FALSE (tapping.tap (20.0)) << "a pause begins anew";
    EXPECT_NEAR (*tapping.tap (20.6), 100.0, 1e-9);
}

TEST (ArpBands, KeepAValueInTheHandWithThePatternThatItIsOf)
{
    Tests::OpenEditor editor;
    auto& grid = editor.find ("Grid");
    auto& slots = editor.getState().patterns.getSlots();
    const auto before = slots[0].pattern.grid;
    const auto move = [&] (float y) {
        return Tests::Hand::mouseEvent (grid, { 2.0f, y }, { 2.0f, 2.0f }, Tests::Hand::leftButton);
    };

    grid.mouseDown (move (2.0f));
    grid.mouseDrag (move (-20.0f));
    editor.page.getContext().shownSlot.set (1); // by Ctrl+2
    grid.mouseDrag (move (-60.0f));
    grid.mouseUp (move (-60.0f));

    EXPECT_GT (slots[0].pattern.grid, before);
    EXPECT_EQ (slots[1].pattern.grid, before);

    editor.page.getContext().edits.undo();
    EXPECT_EQ (slots[0].pattern.grid, before);
}

TEST (ArpBands, StartsAndRewindsTheClockOnlyWhereItIsInCharge)
{
    Tests::OpenEditor editor;
    auto& playHead = *editor.getState().playHead;
    auto& play = editor.find<PlayButton> ("Play");

    for (const auto inCharge : { InCharge::nobody, InCharge::host, InCharge::editor })
    {
        playHead.control = inCharge;
        playHead.isPlaying = false;
        playHead.positionPpq = 8.0;
        editor.poll();

        Tests::Hand::click (play);
        Tests::Hand::click (play,
                            { juce::ModifierKeys::leftButtonModifier | juce::ModifierKeys::altModifier });

        const auto isInCharge = inCharge == InCharge::editor;
        EXPECT_EQ (playHead.isPlaying, isInCharge);
        EXPECT_EQ (playHead.positionPpq, isInCharge ? 0.0 : 8.0);
    }
}

TEST (ArpBands, ChangesToolsWithoutAStepOfUndo)
{
    Tests::OpenEditor editor;
    auto& state = editor.getState();

    for (const auto& [element, brush] : { std::pair { "BrushCursor", Brush::cursor },
                                          { "BrushVelocity", Brush::velocity },
                                          { "BrushChance", Brush::chance },
                                          { "BrushPencil", Brush::pencil } })
    {
        Tests::Hand::click (editor.find (element));
        EXPECT_EQ (state.brush.get(), brush) << element;
    }

    Tests::Hand::click (editor.find ("ClockInternal"));
    EXPECT_TRUE (state.playHead->internalClock);
    EXPECT_FALSE (editor.processor.getUndo().canUndo());
}

TEST (ArpBands, ShowsTheGridAndTheLengthOfTheOpenPattern)
{
    Tests::OpenEditor editor;
    auto& slots = editor.getState().patterns.getSlots();
    auto& length = editor.find<Label> ("PatternLength");
    EXPECT_EQ (length.getText(), "= 4 beats");

    EXPECT_TRUE (valueOf (editor, "Grid").setFromTyped ("12"));
    EXPECT_TRUE (valueOf (editor, "TimeNum").setFromTyped ("1"));
    EXPECT_TRUE (valueOf (editor, "TimeDenum").setFromTyped ("8"));
    valueOf (editor, "Multiply").stepBy (1);
    editor.poll();

    EXPECT_EQ (slots[0].pattern.grid, 12);
    EXPECT_EQ (length.getText(), "= 6 beats");
    EXPECT_EQ (valueOf (editor, "NoteLength").getShownText(), "98 %");
}
} // namespace Zn::GUI
