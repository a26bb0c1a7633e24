#include "Foundation/Events/Listener.h"
#include "Foundation/Singleton.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/UserColours.h"

#include <gtest/gtest.h>

namespace Zn::GUI::AssetScheme
{
namespace
{
struct AssetSchemeUserColours : testing::Test
{
    AssetSchemeUserColours() { folder.createDirectory(); }
    ~AssetSchemeUserColours() override { folder.deleteRecursively(); }

    /** Replaces the file, with a time of its own even on clocks that count whole seconds. */
    void write (const juce::String& text)
    {
        file.replaceWithText (text);
        file.setLastModificationTime (juce::Time (++seconds * 1000));
    }

    juce::Colour pattern() const { return scheme.colourOf ("Pattern"); }

    Singleton::UserToken singletonsStay;
    Base& scheme = Base::get();
    juce::Colour builtIn = pattern();
    juce::File folder = juce::File::createTempFile ("colours");
    juce::File file = folder.getChildFile (UserColours::fileName);
    juce::int64 seconds = 1000000;
};
} // namespace

TEST_F (AssetSchemeUserColours, LieOverTheBuiltInOnesUntilReset)
{
    write (R"({"Pattern": {"r": 1, "g": 400, "b": -3}, "Own": {"r": 1}})");
    UserColours colours (file);

    EXPECT_EQ (pattern(), juce::Colour (1, 255, 0)) << "clamped; opaque as before";
    EXPECT_FALSE (scheme.getTables().getColours().contains ("Own"));

    auto numChanges = 0;
    const Events::Listener listener (scheme, [&numChanges] { ++numChanges; });

    write (R"({"Pattern": {"r": 2, "g": 2, "b": 2}})");
    colours.check();
    EXPECT_EQ (pattern(), juce::Colour (2, 2, 2));
    EXPECT_EQ (numChanges, 1);

    colours.check();
    EXPECT_EQ (numChanges, 1) << "nothing has changed";

    colours.reset();
    EXPECT_EQ (pattern(), builtIn);
    EXPECT_FALSE (file.exists());
}

TEST_F (AssetSchemeUserColours, AreIgnoredWhenTheyAreNone)
{
    UserColours colours (file);
    EXPECT_EQ (pattern(), builtIn) << "no file";

    for (const auto* text : { "",
                              "no json",
                              "[1, 2]",
                              R"({"Pattern": 3})",
                              R"({"Pattern": {"r": "1", "g": null}})",
                              R"({"Pattern": {"r": 1e999}})",
                              R"({"Pattern": {"r": 1)" })
    {
        write (text);
        colours.check();
        EXPECT_EQ (pattern(), builtIn) << text;
    }

    write ("{\"Pattern\": {\"r\": 1}}" + juce::String::repeatedString (" ", 2000000));
    colours.check();
    EXPECT_EQ (pattern(), builtIn) << "too long";
}

TEST_F (AssetSchemeUserColours, StayWhileTheSchemeItselfIsWorkedOn)
{
    scheme.setUserColours (R"({"Pattern": {"r": 7, "g": 7, "b": 7}})");

    folder.getChildFile ("Main.json").replaceWithText (R"({"Plugin": {"width": 1000, "height": 500}})");
    folder.getChildFile ("Constants.json").replaceWithText ("broken");
    scheme.follow (folder);

    EXPECT_EQ (scheme.boundsOf ("Plugin")->getHeight(), 500);
    EXPECT_EQ (scheme.constantOf ("DefaultWidth"), 1100.0f) << "the embedded file, as the other is broken";
    EXPECT_EQ (pattern(), juce::Colour (7, 7, 7));
}
} // namespace Zn::GUI::AssetScheme
