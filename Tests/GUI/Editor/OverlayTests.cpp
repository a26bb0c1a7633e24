#include "GUI/Editor/Menus.h"
#include "GUI/Editor/OverlayLayer.h"
#include "GUI/Support/OpenEditor.h"
#include "GUI/Widgets/EditorLook.h"
#include "GUI/Widgets/Popup.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Zn::GUI
{
namespace
{
using Parameters::MenuItems::Item;

OverlayLayer& overlayOf (Tests::OpenEditor& editor)
{
    return dynamic_cast<OverlayLayer&> (editor.page.getContext().overlay);
}

void openPopup (Tests::OpenEditor& editor)
{
    auto& context = editor.page.getContext();
    context.overlay.openPopup (std::make_unique<Popup> (context, "AboutPopup", "About"));
}

/** Clicks the link of the message. */
void followLink (OverlayLayer& overlay)
{
    for (auto* card : overlay.getChildren())
        for (auto* part : card->getChildren())
            if (auto* link = dynamic_cast<juce::HyperlinkButton*> (part))
                link->onClick();
}

/** Opens the field over a control; only "7" is a value. */
struct Entry
{
    explicit Entry (Tests::OpenEditor& editor) : overlay (overlayOf (editor))
    {
        overlay.enterValue (
            editor.find ("Settings"),
            "3",
            [this] (const juce::String& text) {
                asked.add (text);
                return text == "7";
            },
            [this] { ++numNexts; });
    }

    bool isOpen() const { return overlay.getValueEntry() != nullptr; }

    void type (const juce::String& text, int key) const
    {
        overlay.getValueEntry()->setText (text);
        overlay.getValueEntry()->keyPressed (juce::KeyPress (key));
    }

    OverlayLayer& overlay;
    juce::StringArray asked;
    int numNexts = 0;
};
} // namespace

TEST (Overlay, ClosesAPopupWithAClickBesideItOrEsc)
{
    Tests::OpenEditor editor;
    auto& overlay = overlayOf (editor);

    openPopup (editor);
    ASSERT_NE (overlay.getPopup(), nullptr);
    Tests::Hand::click (editor.find ("Backdrop"));
    EXPECT_EQ (overlay.getPopup(), nullptr);
    EXPECT_FALSE (editor.find ("Backdrop").isVisible());

    openPopup (editor);
    EXPECT_TRUE (Tests::Hand::press (*overlay.getPopup(), "escape"));
    EXPECT_EQ (overlay.getPopup(), nullptr);
}

TEST (Overlay, EndsWithEscThePopupBeforeLearningAndThatBeforeTheSelection)
{
    Tests::OpenEditor editor;
    auto& actions = editor.page.getContext().actions;
    juce::StringArray ended;
    auto isLearning = true;
    actions.leaveLearning = [&] { return ended.add ("learning"), std::exchange (isLearning, false); };
    actions.endSelection = [&] { return ended.add ("selection"), true; };
    openPopup (editor);

    for (const auto* expected : { "", "learning", "learning, learning, selection" })
    {
        Tests::Hand::press (editor.page, "escape");
        EXPECT_EQ (ended.joinIntoString (", "), expected);
    }
}

TEST (Overlay, KeepsAPopupThatIsReplacedUntilItsOwnCallHasReturned)
{
    Tests::OpenEditor editor;
    openPopup (editor);
    const juce::Component::SafePointer<juce::Component> first (overlayOf (editor).getPopup());

    openPopup (editor);
    EXPECT_NE (first, nullptr);
    EXPECT_NE (overlayOf (editor).getPopup(), first);

    editor.poll();
    EXPECT_EQ (first, nullptr);
}

TEST (ValueEntry, StaysUntilItHasAValueOrIsGivenUp)
{
    Tests::OpenEditor editor;
    Entry entry (editor);

    entry.type ("x", juce::KeyPress::returnKey);
    EXPECT_TRUE (entry.isOpen());
    entry.type ("7", juce::KeyPress::returnKey);
    EXPECT_FALSE (entry.isOpen());
    EXPECT_EQ (entry.asked, juce::StringArray ({ "x", "7" }));
    EXPECT_EQ (entry.numNexts, 0);

    Entry withTab (editor);
    withTab.type ("7", juce::KeyPress::tabKey);
    EXPECT_EQ (withTab.numNexts, 1);

    Entry givenUp (editor);
    givenUp.type ("7", juce::KeyPress::escapeKey);
    EXPECT_FALSE (givenUp.isOpen());
    EXPECT_TRUE (givenUp.asked.isEmpty());
}

TEST (ValueEntry, ReddensInsteadOfShakingWhereNothingShallMove)
{
    for (const auto isReduced : { true, false })
    {
        Tests::OpenEditor editor;
        auto values = editor.page.getContext().settings.get();
        values.reducedMotion = isReduced;
        editor.page.getContext().settings.set (values);

        const Entry entry (editor);
        entry.type ("x", juce::KeyPress::returnKey);
        EXPECT_EQ (bool (entry.overlay.getValueEntry()->getProperties()[EditorLook::refused]), isReduced);
    }
}

TEST (Menus, HaveTheLinesOfTheirItems)
{
    auto chosen = 0;
    Item menu;
    menu.subItems = { { .text = "One", .isSelected = [] { return true; }, .action = [&] { chosen = 1; } },
                      {},
                      { .text = "More", .subItems = { { .text = "Two", .action = [&] { chosen = 2; } } } } };

    auto owner = std::make_unique<juce::Component>();
    const auto lines = popupMenuOf (menu, *owner);
    juce::StringArray seen;

    for (juce::PopupMenu::MenuItemIterator iterator (lines, true); iterator.next();)
    {
        const auto& line = iterator.getItem();
        seen.add (line.isSeparator ? "-" : line.text + (line.isTicked ? "!" : ""));

        if (line.text == "Two")
        {
            line.action();
            EXPECT_EQ (chosen, 2);
            owner.reset(); // the editor closes while its menu is open
        }
    }

    EXPECT_EQ (seen.joinIntoString (" "), "One! - More Two");

    juce::PopupMenu::MenuItemIterator iterator (lines);
    iterator.next();
    iterator.getItem().action();
    EXPECT_EQ (chosen, 2);
}

TEST (Tooltips, ComeWhenThePointerRestsAndGoWithIt)
{
    Tests::OpenEditor editor;
    auto& tooltips = overlayOf (editor).getTooltips();
    auto& settings = editor.page.getContext().settings;
    auto& help = editor.find ("Help");

    tooltips.look (&help, {}, 100);
    EXPECT_EQ (tooltips.getShown(), "");
    tooltips.look (&help, {}, 1000);
    EXPECT_EQ (tooltips.getShown(), "Help");
    tooltips.look (&help, {}, 0); // moves on it
    EXPECT_EQ (tooltips.getShown(), "Help");
    tooltips.look (nullptr, {}, 1000);
    EXPECT_EQ (tooltips.getShown(), "");
    tooltips.look (&editor.find ("PitchMap"), {}, 1000);
    EXPECT_EQ (tooltips.getShown(), "Rows");

    auto values = settings.get();
    values.tooltips = false;
    settings.set (values);
    tooltips.look (&help, {}, 1000);
    EXPECT_EQ (tooltips.getShown(), "");
}

TEST (Messages, OfferToUndoOnlyWhatTheyTellOf)
{
    Tests::OpenEditor editor;
    auto& overlay = overlayOf (editor);
    auto& edits = editor.page.getContext().edits;
    auto& snap = editor.getState().snapParam;

    const auto setSnap = [&] (bool snaps) { return snap.setBool (snaps), true; };

    edits.perform ("Snap", [&] { return setSnap (false); });
    overlay.showUndo ("Done");
    followLink (overlay);
    EXPECT_TRUE (snap.getBool());

    edits.perform ("Snap", [&] { return setSnap (false); });
    overlay.showUndo ("Done");
    edits.perform ("Snap", [&] { return setSnap (true); });
    EXPECT_EQ (overlay.getMessage(), "");

    overlay.showUndo ("Done");
    edits.join (&snap, "Snap", [&] { return setSnap (false); });
    followLink (overlay);
    EXPECT_FALSE (snap.getBool()) << "a wheel that may still turn is a later step";
}

TEST (Messages, StayInTheMiddleOfAnEditorOfAnotherSize)
{
    Tests::OpenEditor editor;
    auto& overlay = overlayOf (editor);
    overlay.showMessage ("Pattern cleared", {}, {});
    editor.page.setSize (800, 553);

    const auto isMessage = [] (const auto* card) { return card->getTitle() == "Pattern cleared"; };
    const auto& cards = overlay.getChildren();
    const auto* const message = *std::find_if (cards.begin(), cards.end(), isMessage);
    const auto place = editor.page.getContext().canvas.boundsOf ("Message");
    EXPECT_EQ (message->getHeight(), place.getHeight());
    EXPECT_NEAR (message->getBounds().getCentreX(), place.getCentreX(), 1);
}
} // namespace Zn::GUI
