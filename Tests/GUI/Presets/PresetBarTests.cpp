#include "GUI/Presets/PresetBar.h"
#include "GUI/Presets/PresetDrop.h"
#include "GUI/Presets/PresetPopup.h"
#include "GUI/Presets/SavePopup.h"
#include "GUI/Presets/SaveTarget.h"
#include "GUI/Support/OpenEditor.h"
#include "Support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Tests::Hand::click;
using Tests::Hand::press;

/** An editor with the presets that the program ships, in folders of its own. */
struct PresetBarTest : testing::Test
{
    Tests::TemporaryHome home;
    Tests::OpenEditor editor { Audio::Plugins::Vornel::StartUp::presets };
    EditorContext& context = editor.page.getContext();
    Audio::Plugins::Vornel::State& state = editor.getState();

    juce::File own (const juce::String& name, const juce::String& category = {})
    {
        return SaveTarget::fileFor (state, name, category);
    }

    template <typename ComponentType = juce::Component>
    ComponentType& find (const juce::String& element)
    {
        return editor.find<ComponentType> (element);
    }

    void type (const juce::String& element, const juce::String& text)
    {
        find<juce::TextEditor> (element).setText (text, true);
        editor.poll();
    }

    void edit()
    {
        state.patterns.rebuild();
        editor.poll();
    }

    PresetList& openBrowser()
    {
        press (editor.page, "ctrl + F");
        return find<PresetList> ("PresetList");
    }

    juce::String listed (PresetList& list)
    {
        juce::StringArray names;

        for (auto row = 0; row < list.getNumRows(); ++row)
            names.add (list.presetAt (row)->name);

        return names.joinIntoString (", ");
    }
};
} // namespace

TEST_F (PresetBarTest, StepsThroughEachLibraryByItself)
{
    const auto pattern = state.getName(), sound = state.synthPreset.getName();

    click (find ("SoundNext"));
    EXPECT_NE (state.synthPreset.getName(), sound);
    EXPECT_EQ (state.getName(), pattern);

    click (find ("SoundPrevious"));
    EXPECT_EQ (state.synthPreset.getName(), sound);

    for (const auto* key : { "ctrl + page down", "ctrl + page up" })
    {
        EXPECT_TRUE (press (editor.page, key));
        editor.poll();
        EXPECT_EQ (find<PresetName> ("PresetName").getShownName(), state.getName());
    }

    EXPECT_EQ (state.getName(), pattern);
}

TEST_F (PresetBarTest, ShowsUnsavedChangesUntilTheyAreSaved)
{
    auto& name = find<PresetName> ("PresetName");
    editor.poll();
    EXPECT_FALSE (name.showsUnsaved());

    edit();
    EXPECT_TRUE (name.showsUnsaved());

    click (find ("PresetSave"));
    ASSERT_NE (context.overlay.getPopup(), nullptr) << "a factory preset asks for a name";
    type ("SaveName", "First");
    click (find ("SaveConfirm"));
    editor.poll();
    EXPECT_FALSE (name.showsUnsaved());
    EXPECT_EQ (name.getShownName(), "First");
    ASSERT_TRUE (own ("First").existsAsFile());

    state.patterns.getSlots()[0].pattern.grid = 5;
    edit();
    state.savesParams = false; // as chosen for another preset meanwhile
    const auto before = own ("First").loadFileAsString();
    click (find ("PresetSave"));
    EXPECT_EQ (context.overlay.getPopup(), nullptr) << "one's own is written over";
    EXPECT_NE (own ("First").loadFileAsString(), before);
    EXPECT_TRUE (PresetActions (context, PresetKind::patterns (state)).bringsSound (own ("First")));
    EXPECT_FALSE (state.isDirty());
}

TEST_F (PresetBarTest, SavesWhereItIsToldAndLeavesNoStepOfUndo)
{
    press (editor.page, "ctrl + shift + S");
    type ("SaveName", "Deep");
    dynamic_cast<CategoryParam&> (*find<Choice> ("SaveCategory").getParameter()).set ("My House?");
    click (find ("SaveWithSound"));
    click (find ("SaveConfirm"));

    EXPECT_TRUE (own ("Deep", "My House").existsAsFile());
    EXPECT_FALSE (state.savesParams);
    EXPECT_FALSE (context.edits.getUndo().canUndo());

    press (editor.page, "ctrl + shift + S");
    EXPECT_EQ (find<juce::TextEditor> ("SaveName").getText(), "Deep 2");
    EXPECT_EQ (find<Choice> ("SaveCategory").getShownText(), "My House");

    find<juce::TextEditor> ("SaveName").clear();
    find<juce::TextEditor> ("SaveName").insertTextAtCaret ("a/b:c");
    EXPECT_EQ (find<juce::TextEditor> ("SaveName").getText(), "abc");

    type ("SaveName", " . ");
    EXPECT_FALSE (find ("SaveConfirm").isEnabled());
    press (find ("SaveName"), "escape");
    EXPECT_EQ (context.overlay.getPopup(), nullptr);
}

TEST_F (PresetBarTest, FindsLoadsAndClosesFromTheSearchField)
{
    auto& list = openBrowser();
    type ("PresetSearch", "hills rolling");
    EXPECT_EQ (listed (list), "Rolling Hills");

    type ("PresetSearch", "polymeter");
    EXPECT_EQ (listed (list), "Counting Up, Five Alive, Out of Phase, Seven Hills, Three over Four");

    auto& search = find<juce::TextEditor> ("PresetSearch");
    press (search, "cursor down");
    press (search, "return");
    editor.poll();
    EXPECT_EQ (state.getName(), "Five Alive");
    EXPECT_NE (context.overlay.getPopup(), nullptr);

    press (search, "return");
    EXPECT_EQ (context.overlay.getPopup(), nullptr);
}

TEST_F (PresetBarTest, KeepsFavouritesForTheUser)
{
    auto& list = openBrowser();
    type ("PresetSearch", "waltz");
    list.selectRow (0);
    press (list, "F");
    editor.poll();
    EXPECT_TRUE (context.settings.get().favourites.contains ("Vornel/Waltz Book"));
    EXPECT_TRUE (list.presetAt (0)->isFavourite);

    find<BrowserGroups> ("PresetCategories").selectRow (1);
    type ("PresetSearch", "");
    find<BrowserGroups> ("PresetCategories").selectRow (1);
    EXPECT_EQ (listed (list), "Waltz Book");

    press (list, "F");
    editor.poll();
    EXPECT_EQ (listed (list), "");
}

TEST_F (PresetBarTest, SaysWhyAPresetWasNotSavedAndTriesAgain)
{
    edit();
    state.getUserFolder().deleteRecursively();
    state.getUserFolder().replaceWithText ("in the way");

    press (editor.page, "ctrl + S");
    type ("SaveName", "Late");
    click (find ("SaveConfirm"));
    editor.poll();

    auto& overlay = dynamic_cast<OverlayLayer&> (context.overlay);
    EXPECT_TRUE (overlay.getMessage().startsWith ("\"Late\" was not saved.")) << overlay.getMessage();
    EXPECT_TRUE (state.isDirty());
    EXPECT_NE (state.getName(), "Late");
}

TEST_F (PresetBarTest, TakesPresetFilesOfEitherKindThatAreDropped)
{
    PresetDrop drop (context);
    const auto sound = state.synthPreset.getContentFolder().getChildFile ("Bass/Round Bass.json");
    const auto other = own ("Other");
    other.replaceWithText ("{}");

    EXPECT_FALSE (drop.accepts ({ other.getFullPathName(), "/nowhere.json" }));
    EXPECT_FALSE (drop.drop ({ other.getFullPathName() }));
    EXPECT_TRUE (drop.accepts ({ other.getFullPathName(), sound.getFullPathName() }));
    EXPECT_TRUE (drop.drop ({ other.getFullPathName(), sound.getFullPathName() }));
    EXPECT_EQ (state.synthPreset.getName(), "Round Bass");
}
} // namespace Zn::GUI
