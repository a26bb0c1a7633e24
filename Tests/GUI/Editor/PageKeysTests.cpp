#include "GUI/Editor/PageKeys.h"
#include "GUI/Support/OpenEditor.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
TEST (PageKeys, LeaveToTheHostWhatNobodyDoes)
{
    Tests::OpenEditor editor;

    for (const auto* key : { "spacebar", "z", "ctrl + 9", "ctrl + A", "shift + ctrl + 1", "F2", "return" })
        EXPECT_FALSE (Tests::Hand::press (editor.page, key)) << key;

    const PageActions nobody;
    EXPECT_FALSE (actOn (juce::KeyPress::createFromDescription ("ctrl + S"), nobody));
}

TEST (PageKeys, ChooseSlots)
{
    juce::String chosen;
    PageActions actions;
    actions.playSlot = [&] (int slot) { chosen = "play " + juce::String (slot); };
    actions.openSlot = [&] (int slot) { chosen = "open " + juce::String (slot); };

    EXPECT_TRUE (actOn (juce::KeyPress::createFromDescription ("ctrl + 1"), actions));
    EXPECT_EQ (chosen, "play 0");
    EXPECT_TRUE (actOn (juce::KeyPress::createFromDescription ("ctrl + alt + 8"), actions));
    EXPECT_EQ (chosen, "open 7");
}

TEST (PageKeys, DoNothingInADragButPlayAndStillAreNotTheHosts)
{
    juce::StringArray done;
    PageActions actions;
    actions.undo = [&] { done.add ("undo"); };
    actions.playSlot = [&] (int) { done.add ("slot"); };
    actions.play = [&] { done.add ("play"); };

    for (const auto* key : { "ctrl + Z", "ctrl + 1", "spacebar" })
        EXPECT_TRUE (actOn (juce::KeyPress::createFromDescription (key), actions, true)) << key;

    EXPECT_EQ (done, juce::StringArray ("play"));
    EXPECT_FALSE (actOn (juce::KeyPress::createFromDescription ("ctrl + Y"), actions, true));
}

TEST (PageKeys, UndoAndRedo)
{
    Tests::OpenEditor editor;
    auto& synth = editor.getState().params.sound.synthEnable.getParameter();

    editor.page.getContext().edits.perform ("Synth", [&synth] {
        synth.setValueNotifyingHost (0.0f);
        return true;
    });

    EXPECT_TRUE (Tests::Hand::press (editor.page, "ctrl + Z"));
    EXPECT_EQ (synth.getValue(), 1.0f);
    EXPECT_TRUE (Tests::Hand::press (editor.page, "ctrl + shift + Z"));
    EXPECT_EQ (synth.getValue(), 0.0f);
}
} // namespace Zn::GUI
