#include "Presets/Param.h"
#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"
#include "Presets/Screen.h"
#include "Presets/ToyLibrary.h"

namespace Zn::Presets::Tests
{
namespace
{
class PresetParam : public LibraryTest
{};

TEST_F (PresetParam, StepsWhenSetToTrueAndShowsTheName)
{
    Toy toy (root);
    write (root.getChildFile ("User/a.json"), presetText ("a").toStdString());
    write (root.getChildFile ("User/b.json"), presetText ("b").toStdString());

    Param next (toy, 1), previous (toy, -1);
    next.setBool (true);
    EXPECT_EQ (next.getCurrentText(), "a");
    next.setBool (false);
    next.setRawNormalised (1.0f);
    EXPECT_EQ (next.getCurrentText(), "b");
    previous.setInt (1);
    toy.setDirty (true);
    EXPECT_EQ (previous.getCurrentText(), "a*");
    EXPECT_FALSE (next.getBool()) << "a button comes up again";
}

TEST (PresetScreen, KeepsItsSizeInADocument)
{
    Screen screen, other;
    EXPECT_EQ (screen.getSize(), (Screen::Size { -1, -1 }));

    screen.setSize ({ 1100, 760 });
    screen.setScale (2.0f);
    auto document = Json::save (screen, ReflectorContext::forHostChunk());
    EXPECT_EQ (document.dump(), R"({"Dimensions":{"height":760,"width":1100}})");

    Json::load (other, document, ReflectorContext::forHostChunk());
    EXPECT_EQ (other.getSize(), screen.getSize());
    EXPECT_EQ (other.getScale(), 1.0f);
}
} // namespace
} // namespace Zn::Presets::Tests
