#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Support/HiddenWindow.h"
#include "GUI/Support/OpenEditor.h"
#include "GUI/Support/ScreenReader.h"

#include <gtest/gtest.h>

#include <utility>

namespace Zn::GUI
{
TEST (Page, AsksTheSchemeForNothingThatItDoesNotHave)
{
    Tests::OpenEditor editor;
    editor.page.createComponentSnapshot (editor.page.getLocalBounds());

    EXPECT_TRUE (AssetScheme::Base::get().getAbsentNames().empty())
        << *AssetScheme::Base::get().getAbsentNames().begin();
}

TEST (Page, ShowsTheFocusThatKeysHaveMovedAndNoneAfterAClick)
{
    Tests::OpenEditor editor;
    Tests::HiddenWindow window { editor.page };
    auto& settings = editor.page.getContext().settings;
    auto still = settings.get();
    still.reducedMotion = true; // pop-ups fade on a screen only
    settings.set (still);

    const auto isShown = [] {
        auto* focused = juce::Component::getCurrentlyFocusedComponent();
        auto* control = dynamic_cast<Control*> (focused);
        auto* roll = dynamic_cast<PianoRoll*> (focused);
        return (control != nullptr && control->showsFocus())
               || (roll != nullptr && ! roll->getCursorBounds().isEmpty());
    };

    for (const auto* key : { "F6", "F6", "tab", "cursor right", "ctrl + ,", "escape", "F1", "escape" })
    {
        EXPECT_TRUE (window.press (key)) << key;
        EXPECT_TRUE (isShown()) << key << ": " << window.focused();
    }

    EXPECT_EQ (window.focused(), "Slot2");
    editor.find ("PianoRoll").grabKeyboardFocus();
    EXPECT_TRUE (isShown());

    auto& roll = editor.find<PianoRoll> ("PianoRoll");
    const auto click = [&] (const char* element) {
        editor.page.mouseDown (Tests::Hand::mouseEvent (editor.page, {}, {}, Tests::Hand::leftButton));
        editor.find (element).grabKeyboardFocus();
    };

    click ("Help");
    EXPECT_FALSE (isShown());
    EXPECT_TRUE (roll.getCursorBounds().isEmpty());

    click ("Bpm");
    editor.page.getContext().overlay.enterValue (editor.find ("Bpm"), "1", [] (auto&) { return false; });
    editor.page.setSize (800, 553);
    EXPECT_FALSE (isShown()) << "the size has closed the text entry, and no key";
}

TEST (Page, TakesTabFromLeftToRightAndPastItself)
{
    Tests::OpenEditor editor;
    Tests::HiddenWindow window { editor.page };
    editor.getState().playHead->control = Sequencer::PlayHead::Control::editor;
    editor.poll();

    const auto wayFrom = [&] (const char* element, const char* key, int numSteps) {
        juce::StringArray way { element };
        editor.find (element).grabKeyboardFocus();

        while (way.size() <= numSteps && window.press (key))
            way.add (window.focused());

        return way.joinIntoString (" ");
    };

    EXPECT_EQ (wayFrom ("ArpActive", "tab", 6), "ArpActive Slot1 Quantize Retrigger Play Bpm Clock");
    EXPECT_NE (wayFrom ("Logo", "shift + tab", 1), "Logo ") << "the page has no name";
    EXPECT_EQ (wayFrom ("SoundMenu", "tab", 2), "SoundMenu SoundFold Osc1Enable");

    EXPECT_EQ (wayFrom ("LaneVelocity", "cursor right", 1), "LaneVelocity LaneChance");
    EXPECT_FALSE (editor.find ("LaneVelocity").getWantsKeyboardFocus());

    editor.page.getContext().canvas.setFold (AssetScheme::Fold::folded);
    EXPECT_EQ (wayFrom ("SoundMenu", "tab", 2), "SoundMenu Master SoundFold");
}

TEST (Page, LeavesNothingBehindWhenItCloses)
{
    Tests::OpenEditor editor;
    auto& learnMap = editor.getState().learnMap;
    auto& scheme = AssetScheme::Base::get();
    const auto counts = [&] {
        return std::pair (learnMap.getBroadcaster().getNumListeners(),
                          scheme.getBroadcaster().getNumListeners());
    };
    const auto before = counts();

    for (auto round = 0; round < 20; ++round)
    {
        Page page (editor.processor);
        page.setSize (800, 553);
        auto& context = page.getContext();
        Tests::Hand::press (page, "F1");
        context.overlay.showMessage ("Cleared", "Undo", [] {});
        context.overlay.showReadout ("Swing", "+3 %", {});
        context.overlay.enterValue (page, "1", [] (const auto&) { return false; });
        page.createComponentSnapshot (page.getLocalBounds());
        EXPECT_NE (counts(), before);
    }

    EXPECT_EQ (counts(), before);
}

TEST (Page, TellsScreenReadersOfItsGroupsAndOfWhatIsChosenInThem)
{
    Tests::OpenEditor editor;
    const auto handlerOf = [&editor] (const char* element) {
        return Tests::accessibilityOf (editor.find (element));
    };

    for (const auto* group : { "Header", "ArpHeader", "ArpEditing", "SoundHeader", "SoundModule" })
    {
        EXPECT_EQ (handlerOf (group)->getRole(), juce::AccessibilityRole::group) << group;
        EXPECT_NE (editor.find (group).getTitle(), "") << group;
    }

    Tests::Hand::press (editor.page, "F1");

    for (const auto& [chosen, other] : { std::pair ("BrushPencil", "BrushCursor"),
                                         std::pair ("BrushCursor", "BrushPencil"),
                                         std::pair ("LaneChance", "LaneVelocity"),
                                         std::pair ("RoutingCase2", "RoutingCase1") })
    {
        handlerOf (chosen)->getActions().invoke (juce::AccessibilityActionType::press);
        EXPECT_TRUE (handlerOf (chosen)->getCurrentState().isChecked()) << chosen;
        EXPECT_FALSE (handlerOf (other)->getCurrentState().isChecked()) << other;
    }
}

TEST (Page, SaysWhyItsHistoryButtonsAreOffAndWhatTheyDo)
{
    Tests::OpenEditor editor;
    const auto& undo = editor.find<Control> ("Undo");
    const auto& redo = editor.find<Control> ("Redo");
    EXPECT_EQ (undo.getTooltipText().help, "Nothing has been changed yet.");
    EXPECT_EQ (redo.getTooltipText().help, "Nothing has been taken back.");

    Tests::Hand::click (editor.find ("Snap"));
    editor.page.getContext().edits.undo();
    editor.poll();
    EXPECT_EQ (redo.getTooltipText().value, "Snap");
}
} // namespace Zn::GUI
