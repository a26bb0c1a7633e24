#include "GUI/Editor/WindowSize.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Popups/RoutingPopup.h"
#include "GUI/Popups/SettingsPopup.h"
#include "GUI/Popups/TextPopup.h"
#include "GUI/Popups/UpdateNotice.h"
#include "GUI/Support/OpenEditor.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
void draw (Tests::OpenEditor& editor)
{
    editor.page.createComponentSnapshot (editor.page.getLocalBounds());
}
} // namespace

TEST (Popups, AskTheSchemeForNothingThatItDoesNotHave)
{
    Tests::OpenEditor editor;
    auto& context = editor.page.getContext();

    for (const auto* opener : { "Logo", "Settings", "Help" })
    {
        Tests::Hand::click (editor.find (opener));
        EXPECT_NE (context.overlay.getPopup(), nullptr) << opener;
        draw (editor);
    }

    context.overlay.openPopup (TextPopup::licences (context));
    draw (editor);
    context.overlay.openPopup (std::make_unique<UpdateNotice> (context));
    draw (editor);

    EXPECT_TRUE (AssetScheme::Base::get().getAbsentNames().empty())
        << *AssetScheme::Base::get().getAbsentNames().begin();
}

TEST (SettingsPopup, ChangesWhatTheUserWantsAndNothingOfTheProject)
{
    Tests::OpenEditor editor;
    auto& context = editor.page.getContext();
    Tests::Hand::click (editor.find ("Settings"));
    const auto before = context.settings.get();

    for (const auto* element :
         { "SettingsReducedMotion", "SettingsTooltips", "SettingsFollow", "SettingsWheel" })
        Tests::Hand::click (editor.find (element));

    auto wanted = before;
    wanted.reducedMotion = ! before.reducedMotion;
    wanted.tooltips = ! before.tooltips;
    wanted.followsPlayingSlot = ! before.followsPlayingSlot;
    wanted.wheelTurnsKnobs = ! before.wheelTurnsKnobs;
    EXPECT_TRUE (context.settings.get() == wanted);
    EXPECT_FALSE (context.edits.getUndo().canUndo());

    auto& windowSize = *editor.find<Choice> ("SettingsWindowSize").getParameter();
    editor.page.setSize (905, 625);
    const auto first = windowSize.getFloat();
    editor.page.setSize (1005, 695);
    EXPECT_NE (windowSize.getFloat(), first) << "or it goes on showing the first of them";
    windowSize.setFromText ("125 %");
    EXPECT_EQ (editor.page.getWidth(), 1375);
}

TEST (SettingsPopup, BringsTheUsersColoursAndTakesThemBack)
{
    Tests::OpenEditor editor;
    auto& context = editor.page.getContext();
    const auto builtIn = AssetScheme::Base::get().colourOf ("Window");
    Tests::Hand::click (editor.find ("Settings"));
    auto& colours = editor.find<Choice> ("SettingsColours");

    colours.getParameter()->setInt (1);
    EXPECT_TRUE (context.settings.get().ownColours);
    EXPECT_EQ (AssetScheme::Base::get().colourOf ("Window"), builtIn); // the file begins as a copy

    AssetScheme::Base::get().setUserColours (R"({"Window": {"r": 1, "g": 2, "b": 3}})");
    colours.getParameter()->getMenuChoices().subItems.back().choose(); // reset
    EXPECT_FALSE (context.settings.get().ownColours);
    EXPECT_EQ (AssetScheme::Base::get().colourOf ("Window"), builtIn);
}

TEST (RoutingPopup, SparesAStepAsOneEdit)
{
    Tests::OpenEditor editor;
    auto& synthEnable = editor.getState().params.sound.synthEnable;
    Tests::Hand::click (editor.find ("Help"));
    Tests::Hand::click (editor.find ("RoutingCase2"));
    Tests::Hand::click (editor.find ("RoutingButton"));
    EXPECT_LT (synthEnable.getParameter().getValue(), 0.5f);

    editor.page.getContext().edits.undo();
    EXPECT_GT (synthEnable.getParameter().getValue(), 0.5f);
}

TEST (UpdateNotice, IsDueOnceAfterAnUpdate)
{
    struct Row
    {
        const char* kept; // null: no file
        bool isDue;
    };

    const Version running { 1, 2, 3 };
    const auto file = juce::File::createTempFile ("txt");

    for (const auto [kept, isDue] : { Row { "1.2.2", true },
                                      Row { "0.9.9\n", true },
                                      Row { "1.2.3", false },
                                      Row { "1.3.0", false },
                                      Row { "new", false },
                                      Row { nullptr, false } })
    {
        file.deleteFile();

        if (kept != nullptr)
            file.replaceWithText (kept);

        EXPECT_EQ (UpdateNotice::isDue (file, running), isDue) << (kept != nullptr ? kept : "no file");
        EXPECT_EQ (file.loadFileAsString(), "1.2.3");
        EXPECT_FALSE (UpdateNotice::isDue (file, running));
    }

    file.deleteFile();
}

TEST (TextPopup, JoinsTheLinesOfAParagraphAndDropsMarks)
{
    EXPECT_EQ (paragraphsOf ("## 1.0\n\n- One\n  [more](More.md)\n- Two (`2`)\n\nLast\nline\n"),
               juce::String::fromUTF8 ("## 1.0\n\n• One more\n• Two (2)\n\nLast line"));
}
} // namespace Zn::GUI
