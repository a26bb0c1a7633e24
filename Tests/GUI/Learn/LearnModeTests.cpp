#include "GUI/Learn/LearnMode.h"
#include "GUI/Support/HiddenWindow.h"
#include "GUI/Support/OpenEditor.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Target = Learning::Target;

struct LearnModeOfEditor : ::testing::Test
{
    LearnModeOfEditor()
    {
        editor.processor.setPlayConfigDetails (2, 2, 48000.0, 480);
        editor.processor.prepareToPlay (48000.0, 480);
        learning.setActive (true);
    }

    void play (const juce::MidiMessage& message)
    {
        juce::AudioBuffer<float> audio { 2, 480 };
        juce::MidiBuffer midi;
        midi.addEvent (message, 0);
        editor.processor.processBlock (audio, midi);
        editor.getState().learnMap.update();
    }

    void playKey (int note) { play (juce::MidiMessage::noteOn (1, note, 0.8f)); }
    void pressPedal() { play (juce::MidiMessage::controllerEvent (1, 64, 127)); }

    /** Where somebody sees it. */
    void click (const char* element, juce::ModifierKeys modifiers = Tests::Hand::leftButton)
    {
        auto& control = editor.find (element);
        const auto middle = mode.getLocalPoint (&control, control.getLocalBounds().getCentre());
        Tests::Hand::click (mode, middle.toFloat(), modifiers);
    }

    LearnMode& findMode()
    {
        for (auto* child : editor.page.getChildren())
            if (auto* found = dynamic_cast<LearnMode*> (child))
                return *found;

        throw std::runtime_error ("no learn mode");
    }

    juce::String keys() const
    {
        juce::StringArray texts;

        for (const auto& binding : editorMap.getBindings())
            texts.add (
                (binding.target.isSlot() ? juce::String (binding.target.slot + 1) : binding.target.param)
                + "=" + juce::String (binding.number));

        return texts.joinIntoString (" ");
    }

    Tests::OpenEditor editor;
    Learning& learning = editor.page.getContext().learning;
    Audio::Plugins::Vornel::LearnMap& editorMap = editor.getState().learnMap;
    LearnMode& mode = findMode();
};
} // namespace

TEST_F (LearnModeOfEditor, GivesKeysToOneSlotAfterTheOther)
{
    editorMap.bind ({ Target::forSlot (2), 30 });

    click ("Slot2");
    EXPECT_TRUE (learning.isArmed (Target::forSlot (1)));
    pressPedal(); // is no key
    playKey (24);
    EXPECT_TRUE (learning.isArmed (Target::forSlot (3))) << "the third has one";
    playKey (25);

    EXPECT_EQ (keys(), "3=30 2=24 4=25");
    EXPECT_EQ (learning.textOf (Target::forSlot (3)), "Db0");

    editor.page.getContext().edits.undo();
    EXPECT_EQ (keys(), "3=30 2=24");
}

TEST_F (LearnModeOfEditor, GivesThePedalToWhatTheHostKnows)
{
    click ("Retrigger");
    playKey (24); // is no pedal
    pressPedal();
    EXPECT_EQ (keys(), "Retrigger=64");
    EXPECT_FALSE (learning.getMap().getLearning()) << "nothing follows a control";

    click ("Quantize");
    pressPedal();
    EXPECT_EQ (keys(), "Retrigger=64 Quantize=64");

    click ("Bpm"); // the host does not know it
    EXPECT_FALSE (learning.getMap().getLearning());

    click ("Retrigger", Tests::Hand::rightButton);
    EXPECT_EQ (keys(), "Quantize=64");
}

TEST_F (LearnModeOfEditor, EndsWaitingThenItself)
{
    click ("Slot1");
    EXPECT_TRUE (Tests::Hand::press (editor.page, juce::KeyPress (juce::KeyPress::escapeKey)));
    EXPECT_FALSE (learning.getMap().getLearning());
    EXPECT_TRUE (mode.isVisible());

    EXPECT_TRUE (Tests::Hand::press (editor.page, juce::KeyPress (juce::KeyPress::escapeKey)));
    EXPECT_FALSE (mode.isVisible());
    EXPECT_FALSE (mode.leave());
}

TEST_F (LearnModeOfEditor, ClosesThePopupThatWouldLieAbove)
{
    learning.setActive (false);
    auto& overlay = editor.page.getContext().overlay;
    Tests::Hand::press (editor.page, "F1");
    ASSERT_NE (overlay.getPopup(), nullptr);

    Tests::Hand::press (editor.page, "ctrl + L");
    EXPECT_TRUE (mode.isVisible());
    EXPECT_EQ (overlay.getPopup(), nullptr);
}

TEST_F (LearnModeOfEditor, KeepsTabFromWhatIsDimmed)
{
    editorMap.bind ({ Target::forSlot (0), 24 });
    learning.setActive (false);
    Tests::HiddenWindow window { editor.page };
    learning.setActive (true);

    for (const auto* key :
         { "tab", "tab", "tab", "shift + tab", "shift + tab", "shift + tab", "shift + tab" })
    {
        window.press (key);
        EXPECT_TRUE (mode.hasKeyboardFocus (true)) << key << ": " << window.focused();
    }

    mode.grabKeyboardFocus(); // as a click in it does
    window.press ("shift + tab");
    EXPECT_TRUE (mode.hasKeyboardFocus (true)) << window.focused();
}

TEST_F (LearnModeOfEditor, ForgetsAllInOneStep)
{
    for (auto slot = 0; slot < 3; ++slot)
        editorMap.bind ({ Target::forSlot (slot), 24 + slot });

    editor.find<Button> ("LearnPanelClear").click();
    EXPECT_EQ (keys(), "");

    editor.page.getContext().edits.undo();
    EXPECT_EQ (keys(), "1=24 2=25 3=26");
}

TEST_F (LearnModeOfEditor, FindsEveryParameterThatTheHostKnows)
{
    editor.getState().keyMode = true;
    editor.poll();

    const auto targets = findLearnTargets (editor.page);
    const auto finds = [&] (const Target& target) {
        return std::any_of (targets.begin(), targets.end(), [&] (auto& found) {
            return found.target == target;
        });
    };

    for (auto slot = 0; slot < Sequencer::numSlots; ++slot)
        EXPECT_TRUE (finds (Target::forSlot (slot)));

    for (const auto* param : { "Arp-Active", "Quantize", "Retrigger", "Octave", "Key", "Swing", "Swing-Ref" })
        EXPECT_TRUE (finds (Target::forParam (param))) << param;
}
} // namespace Zn::GUI
