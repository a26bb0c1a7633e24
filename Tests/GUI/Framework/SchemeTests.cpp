#include "Foundation/Singleton.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Framework/Resources.h"
#include "GUI/Framework/StaticFontMap.h"
#include "Presets/Reflection/JsonText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Zn::GUI::AssetScheme
{
namespace
{
using juce::Rectangle;

struct Scheme : testing::Test
{
    Singleton::UserToken singletonsStay;
};

const std::vector<Dimensions<int>> sizes { { 800, 553 },   { 1000, 691 },  { 1100, 760 },
                                           { 1650, 1140 }, { 2200, 1520 }, { 3300, 2280 } };

Tables rectanglesOf (const char* text)
{
    Tables tables;
    tables.addRectangles (Json::parse (text));
    return tables;
}

const char* const rectangleFiles[] = { "Main.json",        "ArpHeader.json",   "ArpParamModule.json",
                                       "BrushModule.json", "SoundModule.json", "Popups.json" };
} // namespace

TEST_F (Scheme, HoldsEveryElementOnceWithAParentThatLeadsToTheEditor)
{
    const auto& tables = Base::get().getTables();
    std::size_t numEntries = 0;

    for (const auto* file : rectangleFiles)
        numEntries += Json::parse (textOf (contentOf (file))).size();

    EXPECT_EQ (tables.getRectangles().size(), numEntries) << "two files name one element";
    EXPECT_FALSE (tables.getColours().empty());
    EXPECT_FALSE (tables.getConstants().empty());

    for (const auto& [name, entry] : tables.getRectangles())
    {
        EXPECT_EQ (entry.parent.empty(), name == "Plugin") << name;

        for (const auto fold : { Fold::open, Fold::folded })
        {
            const auto bounds = tables.absolute (name, fold);
            ASSERT_TRUE (bounds.has_value()) << name;
            EXPECT_FALSE (bounds->isEmpty()) << name;
        }
    }
}

TEST_F (Scheme, KeepsElementsInsideTheirParents)
{
    const auto& tables = Base::get().getTables();

    for (const auto& [name, entry] : tables.getRectangles())
    {
        if (name == "Plugin" || name == "Resizer") // whose corner lies outside, where a hand reaches for it
            continue;

        EXPECT_TRUE (
            tables.absolute (entry.parent, Fold::open)->contains (*tables.absolute (name, Fold::open)))
            << name;
    }

    EXPECT_EQ (tables.absolute ("Resizer", Fold::open), Rectangle<int> (962, 962, 50, 50));
    EXPECT_EQ (tables.absolute ("PianoRoll", Fold::open), Rectangle<int> (47, 267, 953, 304));
}

TEST_F (Scheme, LetsNeighboursMeetAtEverySize)
{
    const std::vector<std::vector<std::string>> columns {
        { "Header", "ArpHeader", "ArpParamModule", "BrushModule", "ArpEditing", "SoundModule", "MidiPlayer" },
        { "HeldChord", "PitchMap" },
        { "Ruler", "PianoRoll", "NoteLane" }
    };

    for (const auto& size : sizes)
    {
        juce::Component root;
        root.setSize (size.width, size.height);
        Canvas canvas (root);

        for (const auto fold : { Fold::open, Fold::folded })
        {
            canvas.setFold (fold);

            for (const auto& column : columns)
                for (std::size_t i = 1; i < column.size(); ++i)
                    EXPECT_EQ (canvas.boundsOf (column[i - 1]).getBottom(),
                               canvas.boundsOf (column[i]).getY())
                        << column[i] << " at " << size.width;

            EXPECT_EQ (canvas.boundsOf ("PitchMap").getRight(), canvas.boundsOf ("PianoRoll").getX());
            EXPECT_EQ (canvas.boundsOf ("PianoRoll").getRight(), size.width);
            EXPECT_EQ (canvas.boundsOf ("MidiPlayer").getBottom(), size.height);
        }

        canvas.setFold (Fold::open);

        for (const auto& [name, entry] : Base::get().getTables().getRectangles())
            EXPECT_FALSE (canvas.boundsOf (name).isEmpty()) << name << " at " << size.width;
    }
}

TEST_F (Scheme, AnswersForWhatItDoesNotHave)
{
    auto& scheme = Base::get();

    EXPECT_FALSE (scheme.boundsOf ("Nowhere").has_value());
    EXPECT_FALSE (scheme.boundsOf ("").has_value());
    EXPECT_EQ (scheme.colourOf ("Plaid"), juce::Colours::grey);
    EXPECT_EQ (scheme.constantOf ("Unknown"), 0.0f);
    EXPECT_EQ (scheme.getAbsentNames(),
               (std::set<std::string, std::less<>> { "", "Nowhere", "Plaid", "Unknown" }));
}

TEST_F (Scheme, TurnsConstantsIntoPixels)
{
    juce::Component root;
    root.setSize (2000, 1382);
    Canvas canvas (root);

    EXPECT_FLOAT_EQ (canvas.pixelsOf ("DefaultStroke"), 6.0f);
    EXPECT_FLOAT_EQ (canvas.cornerOf ("PreviewBoxCorner", { 0.0f, 0.0f, 300.0f, 100.0f }), 12.3f);

    juce::ComponentBoundsConstrainer limits;
    Canvas::limit (limits);
    EXPECT_EQ (Rectangle<int> (limits.getMinimumWidth(), limits.getMinimumHeight()),
               Rectangle<int> (800, 553));
    EXPECT_EQ (Rectangle<int> (limits.getMaximumWidth(), limits.getMaximumHeight()),
               Rectangle<int> (3300, 2280));
    EXPECT_DOUBLE_EQ (limits.getFixedAspectRatio(), 1100.0 / 760.0);
}

TEST_F (Scheme, SizesFontsByTheirEmAndNotBelowTheFloor)
{
    juce::Component root;
    root.setSize (2000, 1382);
    Canvas canvas (root);

    const auto widthOf = [&canvas] (const char* constant) {
        return canvas.fontOf (constant).getStringWidthFloat ("Vornel");
    };

    EXPECT_NEAR (widthOf ("FontRead") / widthOf ("FontSmall"), 0.02 / 0.0102, 0.03);

    // Line heights by the fonts' own tables: 3408 of 2816 units, and 1254 of 1000.
    EXPECT_NEAR (canvas.fontOf ("FontRead", Cut::bold).getHeight(), 40.0 * 3408 / 2816, 0.01);
    EXPECT_NEAR (canvas.fontOf ("FontRead", Cut::logo).getHeight(), 40.0 * 1254 / 1000, 0.01);

    root.setSize (800, 553);
    EXPECT_NEAR (canvas.fontOf ("FontLabel").getHeight(), 9.0 * 3408 / 2816, 0.01);
}

TEST_F (Scheme, LoadsEachTypefaceOnce)
{
    auto& fonts = Binaries::StaticFontMap::get();

    for (const auto* name :
         { "Inter-Regular.otf", "Inter-Bold.otf", "Inter-Italic.otf", "Orbitron-Bold.ttf" })
    {
        const auto face = fonts.getTypeface (name);
        ASSERT_NE (face, nullptr) << name;
        EXPECT_EQ (face, fonts.getTypeface (name));
        EXPECT_TRUE (juce::String (name).startsWith (face->getName())) << face->getName();
    }

    EXPECT_EQ (fonts.getTypeface ("Main.json"), nullptr);
    EXPECT_EQ (fonts.getTypeface (""), nullptr);
    EXPECT_GT (fonts.fontOf ("Unknown.otf", 12.0f).getStringWidthFloat ("x"), 0.0f);
}

TEST (SchemeTables, LeaveOutWhatHasNoPlace)
{
    std::string deep = R"({"E0": {"x": 1, "width": 9, "height": 9})";

    for (auto i = 1; i <= 40; ++i)
        deep += ", \"E" + std::to_string (i) + R"(": {"parent": "E)" + std::to_string (i - 1)
                + R"(", "x": 1, "width": 9, "height": 9})";

    const auto chain = rectanglesOf ((deep + "}").c_str());
    EXPECT_EQ (chain.absolute ("E32", Fold::open), Rectangle<int> (33, 0, 9, 9));
    EXPECT_FALSE (chain.absolute ("E33", Fold::open).has_value());

    const auto circle = rectanglesOf (
        R"({"A": {"parent": "B"}, "B": {"parent": "A"}, "Self": {"parent": "Self"}, "Orphan": {"parent": "Nobody"}})");

    for (const auto* name : { "A", "B", "Self", "Orphan" })
        EXPECT_FALSE (circle.absolute (name, Fold::open).has_value()) << name;
}

TEST (SchemeTables, MakeSenseOfAnyFile)
{
    const char* const files[] = {
        "",
        "null",
        "[]",
        "[[[[",
        "\"x\"",
        "{\"A\"",
        R"({"A": null, "B": 1, "C": [1], "D": "x", "E": true})",
        R"({"A": {"parent": 3, "x": "1", "y": null, "width": [], "height": {}}})",
        R"({"A": {"r": "red", "g": 1e308, "b": -1e308, "a": {}, "value": "x"}})",
        R"({"A": {"x": 1e308, "y": -1e308, "width": 18446744073709551615, "height": -5}})",
        R"({"A": {"placement": {"x": 1}, "parent": "", "value": 1e300}})"
    };

    for (const auto* text : files)
    {
        const auto file = Json::parse (text);
        Tables tables;
        tables.addRectangles (file);
        tables.addColours (file);
        tables.changeColours (file);
        tables.addConstants (file);

        for (const auto& [name, entry] : tables.getRectangles())
        {
            const auto bounds = tables.absolute (name, Fold::open);
            ASSERT_TRUE (bounds.has_value()) << text;
            EXPECT_GE (bounds->getHeight(), 0) << text;
            scaled (*bounds, { 3300, 2280 });
        }

        for (const auto& [name, value] : tables.getConstants())
            EXPECT_TRUE (std::isfinite (value)) << text;
    }
}
} // namespace Zn::GUI::AssetScheme
