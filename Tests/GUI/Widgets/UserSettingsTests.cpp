#include "GUI/Widgets/UserSettings.h"

#include "Foundation/Events/Listener.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <filesystem>

namespace Zn::GUI
{
namespace
{
using Values = UserSettings::Values;

struct SettingsFile
{
    SettingsFile() { file.getParentDirectory().createDirectory(); }
    ~SettingsFile() { file.getParentDirectory().deleteRecursively(); }

    juce::File file = juce::File::createTempFile ("settings").getChildFile ("settings.json");
};
} // namespace

TEST (UserSettings, ReadWhatWasWritten)
{
    const SettingsFile settingsFile;
    const Values changed { .middleC = 4,
                           .tooltips = false,
                           .reducedMotion = true,
                           .playHeadHertz = 30,
                           .followsPlayingSlot = false,
                           .wheelTurnsKnobs = false,
                           .ownColours = true,
                           .chordsPlayed = 7,
                           .favourites = { "Vornel/One \"two\"", juce::String::fromUTF8 ("Vornel/Größe") } };

    UserSettings (settingsFile.file).set (changed);
    EXPECT_TRUE (UserSettings (settingsFile.file).get() == changed);
}

TEST (UserSettings, TakeTheDefaultOfWhateverMakesNoSense)
{
    const SettingsFile settingsFile;

    for (const auto* text :
         { "", "{", "[]", "null", "\xff\xfe", "{\"middleC\": \"four\", \"favourites\": 3}" })
    {
        settingsFile.file.replaceWithData (text, std::strlen (text));
        EXPECT_TRUE (UserSettings (settingsFile.file).get() == Values()) << text;
    }

    settingsFile.file.replaceWithText (
        R"({"middleC": 99, "playHeadHertz": 7, "tooltips": false, "unknown": {}})");
    const UserSettings settings (settingsFile.file);
    EXPECT_EQ (settings.get().middleC, 4);
    EXPECT_EQ (settings.get().playHeadHertz, 60);
    EXPECT_FALSE (settings.get().tooltips);
}

TEST (UserSettings, KeepWhatCannotBeReadAndWhatIsKnownAlready)
{
    const SettingsFile settingsFile;
    const auto& file = settingsFile.file;
    const auto broken = R"({"favourites": ["Vornel/One")";
    file.replaceWithText (broken);

    UserSettings settings (file);
    settings.set ({ .favourites = { "Vornel/Two" } });
    EXPECT_EQ (file.getSiblingFile ("settings.json.bad").loadFileAsString(), broken);

    file.replaceWithText (broken);
    settings.check();
    settings.set ({ .tooltips = false, .favourites = { "Vornel/Two" } });
    EXPECT_EQ (UserSettings (file).get().favourites, juce::StringArray ("Vornel/Two"));
    EXPECT_EQ (file.getParentDirectory().getNumberOfChildFiles (juce::File::findFiles), 3);
}

TEST (UserSettings, TellOnceThatTheyCannotBeWrittenAndWriteAllOfItLater)
{
    const SettingsFile settingsFile;
    const auto folder = settingsFile.file.getParentDirectory();
    UserSettings settings (settingsFile.file);
    auto numFailures = 0;
    const Events::Listener listener (settings.getFailures(), [&] { ++numFailures; });

    folder.deleteRecursively();
    folder.replaceWithText ("is in the way");
    settings.set ({ .middleC = 4 });
    settings.set ({ .middleC = 4, .tooltips = false });
    EXPECT_EQ (numFailures, 1);
    settings.retry();
    EXPECT_EQ (numFailures, 2);
    EXPECT_FALSE (settings.get().tooltips) << "it counts all the same";

    folder.deleteFile();
    UserSettings (settingsFile.file).set ({ .wheelTurnsKnobs = false });
    settings.check();
    EXPECT_FALSE (settings.get().tooltips) << "what others write leaves it alone";
    settings.retry();
    EXPECT_EQ (numFailures, 2);
    EXPECT_TRUE (UserSettings (settingsFile.file).get() == settings.get());
    EXPECT_FALSE (settings.get().wheelTurnsKnobs);
}

TEST (UserSettings, AreSharedByOpenEditors)
{
    const SettingsFile settingsFile;
    UserSettings (settingsFile.file).set ({ .favourites = { "both", "old" } });
    UserSettings one (settingsFile.file), other (settingsFile.file);
    auto numChanges = 0;
    const Events::Listener listener (other, [&] { ++numChanges; });

    auto values = one.get();
    values.middleC = 4;
    values.favourites = { "both", "one" };
    one.set (values);
    one.check();

    values = other.get(); // which has not looked yet
    values.tooltips = false;
    values.favourites.add ("other");
    other.set (values);
    EXPECT_EQ (numChanges, 1);
    EXPECT_EQ (other.get().middleC, 4);

    EXPECT_EQ (other.get().favourites, juce::StringArray ("both", "one", "other"));

    const auto path = settingsFile.file.getFullPathName().toStdString();
    std::filesystem::last_write_time (path,
                                      std::filesystem::last_write_time (path)
                                          + std::chrono::milliseconds (1)); // on coarse clocks, too
    one.check();
    EXPECT_TRUE (one.get() == other.get());
}
} // namespace Zn::GUI
