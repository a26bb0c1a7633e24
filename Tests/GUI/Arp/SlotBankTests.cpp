#include "GUI/Arp/SlotBank.h"
#include "GUI/Support/BareEditor.h"
#include "GUI/Support/OpenEditor.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using juce::ModifierKeys;

const ModifierKeys altClick { ModifierKeys::leftButtonModifier | ModifierKeys::altModifier };

struct SlotBankOfEditor : ::testing::Test
{
    SlotBankOfEditor()
    {
        editor.processor.setPlayConfigDetails (2, 2, 48000.0, 480);
        editor.processor.prepareToPlay (48000.0, 480);
        play (0.02);
    }

    /** Seconds, and then a look. */
    void play (double seconds)
    {
        juce::AudioBuffer<float> audio { 2, 480 };
        juce::MidiBuffer midi;

        for (auto blocks = int (seconds * 100.0); blocks > 0; --blocks)
            editor.processor.processBlock (audio, midi);

        editor.poll();
    }

    void draw (int slot, int row)
    {
        auto& patterns = editor.getState().patterns;
        const Sequencer::PatternController::Edit edit { patterns };
        Sequencer::TimedNote note { .time = { 0.0, 0.25 }, .event = {}, .enabled = true };
        note.event.noteNum = row;
        patterns.getSlots()[std::size_t (slot)].pattern.steps.push_back (note);
    }

    SlotTile& tile (int number) { return editor.find<SlotTile> ("Slot" + juce::String (number)); }
    auto& steps (int number)
    {
        return editor.getState().patterns.getSlots()[std::size_t (number - 1)].pattern.steps;
    }
    int shown() { return editor.page.getContext().shownSlot.get() + 1; }
    int wanted() { return editor.getState().slotParam.getInt() + 1; }
    int heard() { return editor.getState().liveSlots->heard.load() + 1; }

    /** From one tile to the middle of another. */
    void dragTile (int from, int to, ModifierKeys modifiers = Tests::Hand::leftButton)
    {
        const auto middle = [] (SlotTile& t) { return t.getLocalBounds().toFloat().getCentre(); };
        auto& source = tile (from);
        Tests::Hand::drag (source,
                           { middle (source), source.getLocalPoint (&tile (to), middle (tile (to))) },
                           modifiers);
    }

    Tests::OpenEditor editor;
};
} // namespace

TEST_F (SlotBankOfEditor, OpensASlotAndPlaysItAtTheNextMomentOfChange)
{
    Tests::Hand::click (tile (3));
    play (0.02); // the clock is in the middle of a quarter

    EXPECT_EQ (shown(), 3);
    EXPECT_EQ (heard(), 1);
    EXPECT_TRUE (tile (3).getLook().isPending);
    EXPECT_TRUE (tile (1).getLook().plays);
    EXPECT_EQ (tile (3).describe(), "Pattern 3, next, empty");

    play (0.7);
    EXPECT_EQ (heard(), 3);
    EXPECT_TRUE (tile (3).getLook().plays && ! tile (3).getLook().isPending);
}

TEST_F (SlotBankOfEditor, TakesBackWhatWasAskedForByAClickOnThePlayingSlot)
{
    Tests::Hand::click (tile (3));
    play (0.02);
    Tests::Hand::click (tile (1));
    play (1.0);

    EXPECT_EQ (shown(), 1);
    EXPECT_EQ (heard(), 1);
    EXPECT_FALSE (tile (3).getLook().isPending);
}

TEST_F (SlotBankOfEditor, OpensOnlyWithAlt)
{
    Tests::Hand::click (tile (5), altClick);
    play (1.0);

    EXPECT_EQ (shown(), 5);
    EXPECT_EQ (heard(), 1);
    EXPECT_TRUE (tile (5).getLook().isShown);
}

TEST_F (SlotBankOfEditor, FollowsWhatBeginsToPlayIfTheUserWantsIt)
{
    auto& settings = editor.page.getContext().settings;

    for (const auto follows : { true, false })
    {
        auto values = settings.get();
        values.followsPlayingSlot = follows;
        settings.set (values);

        editor.getState().slotParam.setInt (follows ? 1 : 2); // by a learned key
        play (1.0);
        EXPECT_EQ (heard(), follows ? 2 : 3);
        EXPECT_EQ (shown(), 2);
    }
}

TEST (SlotBank, StaysWithThePatternWhoseMenuIsOpen)
{
    Tests::BareEditor editor;
    const SlotBank bank { editor.context };
    editor.getState().liveSlots->heard = 3;

    for (const auto isOpen : { true, false })
    {
        editor.overlay.menuIsOpen = isOpen;
        editor.polls.callListeners();
        EXPECT_EQ (editor.shownSlot.get(), isOpen ? 0 : 3);
    }

    EXPECT_EQ (editor.overlay.announced.joinIntoString ("; "), "Pattern 4, playing, empty");
}

TEST_F (SlotBankOfEditor, OpensWhatUndoHasChangedAndNotWhatPlaysThen)
{
    auto& edits = editor.page.getContext().edits;
    Tests::Hand::click (tile (2), altClick);
    edits.perform ("Draw", [this] { return draw (1, 64), true; });

    Tests::Hand::click (tile (3));
    play (1.0);
    EXPECT_EQ (heard(), 3);

    edits.undo();
    EXPECT_EQ (heard(), 1) << "which played when it was drawn";
    editor.poll();
    EXPECT_EQ (shown(), 2);
}

TEST_F (SlotBankOfEditor, TakesKeysOfTheFocusedTile)
{
    EXPECT_TRUE (Tests::Hand::press (tile (2), juce::KeyPress (juce::KeyPress::returnKey)));
    EXPECT_EQ (wanted(), 2);

    EXPECT_TRUE (Tests::Hand::press (tile (2), juce::KeyPress ('7', ModifierKeys::altModifier, 0)));
    EXPECT_EQ (shown(), 7);
    EXPECT_EQ (wanted(), 2);

    EXPECT_TRUE (Tests::Hand::press (tile (2), juce::KeyPress ('4')));
    EXPECT_EQ (wanted(), 4);

    EXPECT_TRUE (Tests::Hand::press (tile (2), juce::KeyPress (juce::KeyPress::rightKey)));
    EXPECT_TRUE (tile (3).getWantsKeyboardFocus());
    EXPECT_FALSE (tile (2).getWantsKeyboardFocus());
}

TEST_F (SlotBankOfEditor, CopiesAndSwapsByDrags)
{
    draw (0, 64);
    draw (1, 70);
    const auto first = steps (1), second = steps (2);

    dragTile (1, 2, altClick);
    EXPECT_EQ (steps (1), second);
    EXPECT_EQ (steps (2), first);
    EXPECT_EQ (wanted(), 1) << "a drag is no click";

    dragTile (1, 3);
    EXPECT_EQ (steps (3), second);
    EXPECT_EQ (tile (3).describe(), "Pattern 3, 1 note");

    editor.page.getContext().edits.undo();
    EXPECT_TRUE (steps (3).empty());
    editor.page.getContext().edits.undo();
    EXPECT_EQ (steps (1), first);
}

TEST_F (SlotBankOfEditor, ShowsHowFarThePatternIsAndFlashesWhenItBegins)
{
    const auto flashes = [this] { return tile (1).getLook().flashes; };
    const auto rest = [this] {
        juce::Thread::sleep (110);
        editor.poll();
    };

    draw (0, 64);
    editor.poll();
    EXPECT_FALSE (flashes());
    play (2.3); // of 2.4 seconds for the bar
    EXPECT_TRUE (flashes()) << "it was silent";
    rest();
    EXPECT_FALSE (flashes());
    play (0.2);
    EXPECT_TRUE (flashes()) << "it begins anew";
    rest();
    EXPECT_FALSE (flashes());
}
} // namespace Zn::GUI
