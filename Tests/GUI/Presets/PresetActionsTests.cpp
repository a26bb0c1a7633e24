#include "GUI/Presets/PresetActions.h"
#include "GUI/Presets/PresetPreviews.h"
#include "GUI/Presets/SaveTarget.h"
#include "GUI/Support/OpenEditor.h"
#include "Presets/PresetFile.h"
#include "Support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
/** An editor with the presets that the program ships, in folders of its own. */
struct PresetActionsTest : testing::Test
{
    Tests::TemporaryHome home;
    Tests::OpenEditor editor { Audio::Plugins::Vornel::StartUp::presets };
    EditorContext& context = editor.page.getContext();
    PresetActions patterns { context, PresetKind::patterns (editor.getState()) };
    PresetActions sounds { context, PresetKind::sounds (editor.getState()) };

    juce::File own (const juce::String& name, const juce::String& category = "House")
    {
        return SaveTarget::fileFor (patterns.getLibrary(), name, category);
    }

    /** Changes something that a preset holds. */
    void edit() { editor.getState().patterns.rebuild(); }
};
} // namespace

TEST_F (PresetActionsTest, FindAndLoadWhatWasSaved)
{
    auto& state = editor.getState();
    state.patterns.getSlots()[0].pattern.grid = 7;
    edit();
    EXPECT_TRUE (state.isDirty());
    EXPECT_FALSE (patterns.canSaveInPlace()) << "a factory preset";

    ASSERT_EQ (patterns.save (own ("Mine")), "");
    EXPECT_EQ (state.getName(), "Mine");
    EXPECT_FALSE (state.isDirty());
    EXPECT_TRUE (patterns.canSaveInPlace());
    EXPECT_EQ (patterns.getCurrentFile(), own ("Mine"));

    patterns.loadInit();
    EXPECT_NE (state.patterns.getSlots()[0].pattern.grid, 7);

    const auto catalogue = catalogueOf (patterns.getLibrary(), {});
    const auto found = catalogue.find ({ PresetGroup::Kind::own, {} }, "mine house");
    ASSERT_EQ (found.size(), 1u);
    EXPECT_TRUE (patterns.load (catalogue.getPresets()[static_cast<std::size_t> (found.front())].file));
    EXPECT_EQ (state.patterns.getSlots()[0].pattern.grid, 7);

    context.edits.undo();
    EXPECT_EQ (state.getName(), "Init") << "a load is one step";
}

TEST_F (PresetActionsTest, KnowTheFileThatWasLoadedFromItsCopies)
{
    ASSERT_EQ (patterns.save (own ("Mine", "House")), "");
    const auto copy = own ("Mine", "Techno");
    ASSERT_TRUE (copy.getParentDirectory().createDirectory() && own ("Mine", "House").copyFileTo (copy));
    patterns.rescan();
    EXPECT_EQ (patterns.getCurrentFile(), own ("Mine", "House"));

    patterns.step (1);
    EXPECT_EQ (patterns.getCurrentFile(), copy);
    patterns.step (1);
    EXPECT_FALSE (patterns.getCurrentFile() == copy) << "goes on from there";
}

TEST_F (PresetActionsTest, KeepTheNewNameWhenTheNextEditIsUndone)
{
    context.edits.perform ("Before", [this] { return edit(), true; });
    ASSERT_EQ (patterns.save (own ("Mine")), "");
    context.edits.perform ("After", [this] { return edit(), true; });
    context.edits.undo();

    EXPECT_EQ (editor.getState().getName(), "Mine");
    EXPECT_FALSE (editor.getState().isDirty());
}

TEST_F (PresetActionsTest, WriteNothingWhereTheyMayNotAndSayWhy)
{
    ASSERT_EQ (patterns.save (own ("Mine")), "");
    const auto before = own ("Mine").loadFileAsString();
    const auto factoryFile = patterns.getLibrary().getDefaultPresetFile();
    const auto factoryText = factoryFile.loadFileAsString();
    edit();

    EXPECT_NE (patterns.save (factoryFile), "");
    EXPECT_EQ (factoryFile.loadFileAsString(), factoryText);

    own ("Folder").createDirectory();

    for (const auto& target : { own ("Folder"), own ("Below", "House/Mine.json"), juce::File() })
        EXPECT_NE (patterns.save (target), "") << target.getFullPathName();

    EXPECT_EQ (own ("Mine").loadFileAsString(), before);
    EXPECT_EQ (editor.getState().getName(), "Mine");
    EXPECT_TRUE (editor.getState().isDirty());
}

TEST_F (PresetActionsTest, RenameAndDeleteOwnFilesOnly)
{
    const auto factoryFile = patterns.getLibrary().getDefaultPresetFile();
    EXPECT_NE (patterns.remove (factoryFile), "");
    EXPECT_NE (patterns.rename (factoryFile, "Other"), "");
    EXPECT_TRUE (factoryFile.existsAsFile());

    // A file of that name once was no preset.
    ASSERT_TRUE (own ("Ours").create().wasOk());
    EXPECT_FALSE (patterns.getLibrary().isValidFile (own ("Ours")));
    own ("Ours").deleteFile();

    ASSERT_EQ (patterns.save (own ("Other")), "");
    ASSERT_EQ (patterns.save (own ("Mine")), "");
    patterns.setFavourite ("Mine", true);

    EXPECT_NE (patterns.rename (own ("Mine"), "Other"), "") << "taken";
    EXPECT_EQ (patterns.rename (own ("Mine"), "Ours?"), "");
    EXPECT_EQ (editor.getState().getName(), "Ours");
    EXPECT_EQ (patterns.getCurrentFile(), own ("Ours"));
    EXPECT_TRUE (patterns.isFavourite ("Ours"));
    EXPECT_FALSE (patterns.isFavourite ("Mine"));

    EXPECT_EQ (patterns.remove (own ("Ours")), "");
    EXPECT_FALSE (own ("Ours").exists());
    EXPECT_FALSE (patterns.getCurrentFile().has_value());
    EXPECT_EQ (editor.getState().getName(), "Ours") << "it is still what is heard";
}

TEST_F (PresetActionsTest, RandomiseTheSoundButForItsLevels)
{
    auto& sound = editor.getState().params.sound;
    auto& oscillators = sound.synth.oscillators.oscillators;
    const auto levels = [&] {
        std::vector<float> values { sound.master.get(), sound.synth.sub.subVolume.get() };

        for (const auto& oscillator : oscillators)
            values.push_back (oscillator.volume.get());

        return values;
    };

    sounds.loadInit();
    const auto levelsBefore = levels();
    const auto before = sounds.toText();

    sounds.randomiseSound();
    EXPECT_NE (sounds.toText(), before);
    EXPECT_EQ (levels(), levelsBefore);
    EXPECT_TRUE (sound.synthEnable.get());

    context.edits.undo();
    EXPECT_EQ (sounds.toText(), before);
}

TEST_F (PresetActionsTest, NameTheSoundAfterThePresetThatHasBroughtIt)
{
    auto& state = editor.getState();
    ASSERT_EQ (patterns.save (own ("Mine")), "");
    state.savesParams = false;
    ASSERT_EQ (patterns.save (own ("Notes")), "");
    sounds.loadInit();
    state.synthPreset.setDirty (true);

    EXPECT_TRUE (patterns.load (own ("Notes")));
    EXPECT_EQ (state.synthPreset.getName(), "Init") << "that has none";
    EXPECT_TRUE (state.synthPreset.isDirty());

    EXPECT_TRUE (patterns.load (own ("Mine")));
    EXPECT_EQ (state.synthPreset.getName(), "from Mine");
    EXPECT_FALSE (state.synthPreset.isDirty());

    context.edits.undo();
    EXPECT_EQ (state.synthPreset.getName(), "Init");
}

TEST_F (PresetActionsTest, CarryAPresetAsText)
{
    auto& state = editor.getState();
    state.savesParams = false;
    ASSERT_EQ (patterns.save (own ("Mine")), "");
    const auto text = patterns.toText();

    patterns.loadInit();
    EXPECT_TRUE (patterns.isPreset (text));
    EXPECT_FALSE (sounds.isPreset (text)) << "of the other library";
    EXPECT_FALSE (patterns.loadText ("{ \"version\": 3"));
    EXPECT_EQ (state.getName(), "Init");

    EXPECT_TRUE (patterns.loadText (text));
    EXPECT_EQ (patterns.toText(), text);
    EXPECT_TRUE (patterns.canSaveInPlace());
}

TEST_F (PresetActionsTest, PreviewsShowTheFirstPatternAndWhetherThereIsASound)
{
    auto& state = editor.getState();
    PresetPreviews previews;
    const auto read = [&] (const juce::File& file) {
        EXPECT_EQ (previews.find (file), nullptr) << "no file is read while a list is drawn";

        while (previews.readSome())
            ;

        return previews.find (file);
    };

    for (const auto savesParams : { true, false })
    {
        state.savesParams = savesParams;
        const auto file = own (savesParams ? "With" : "Without");
        ASSERT_EQ (patterns.save (file), "");

        const auto* preview = read (file);
        ASSERT_NE (preview, nullptr);
        EXPECT_EQ (preview->bringsSound, savesParams);
        EXPECT_EQ (preview->steps, state.patterns.getSlots()[0].pattern.steps);
        EXPECT_GT (preview->numPatterns, 0);
    }

    const auto noPreset = own ("Broken");
    noPreset.replaceWithText ("{\"Patterns\":{\"Patterns\":[{\"Pattern\":{\"grid\":\"x\"}}]}}");
    ASSERT_NE (read (noPreset), nullptr);
    EXPECT_TRUE (read (own ("Missing"))->steps.empty());
}
} // namespace Zn::GUI
