#include "GUI/Widgets/UserSettings.h"

#include "Foundation/Events/Listener.h"

#include <gtest/gtest.h>

#include <cstring>

namespace Zn::GUI
{
namespace
{
using Values = UserSettings::Values;

struct SettingsFile
{
    ~SettingsFile() { file.deleteFile(); }

    juce::File file = juce::File::createTempFile ("json");
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

TEST (UserSettings, AreSharedByOpenEditors)
{
    const SettingsFile settingsFile;
    UserSettings one (settingsFile.file), other (settingsFile.file);
    auto numChanges = 0;
    const Events::Listener listener (other, [&] { ++numChanges; });

    auto values = one.get();
    values.middleC = 4;
    one.set (values);

    values = other.get(); // which has not looked yet
    values.tooltips = false;
    other.set (values);
    EXPECT_EQ (numChanges, 1);
    EXPECT_EQ (other.get().middleC, 4);

    settingsFile.file.setLastModificationTime (juce::Time::getCurrentTime() + juce::RelativeTime (5.0));
    one.check();
    EXPECT_TRUE (one.get() == other.get());
}
} // namespace Zn::GUI
