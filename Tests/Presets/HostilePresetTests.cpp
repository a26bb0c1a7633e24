#include "Presets/HeaderReader.h"
#include "Presets/ToyLibrary.h"

#include <sys/stat.h>

#include <filesystem>
#include <set>

namespace Zn::Presets::Tests
{
namespace
{
using namespace std::string_literals;

struct HostilePresets : LibraryTest
{
    juce::File user (const juce::String& path) const
    {
        return root.getChildFile ("User").getChildFile (path);
    }

    Toy toy { root };
};

enum class Fate
{
    refused,
    loads,
    breaksOff
};

struct Row
{
    std::string what, text;
    Fate fate;
};

std::string repeated (const std::string& text, int times)
{
    std::string result;

    while (--times >= 0)
        result += text;

    return result;
}

std::vector<Row> rows()
{
    const auto text = [] (const juce::String& members) { return presetText ("x", members).toStdString(); };
    const auto ofVersion = [] (const std::string& version) {
        return R"({"product":"Toy","version":)" + version + "}";
    };

    return { { "nothing", "", Fate::refused },
             { "half a document", text ({}).substr (0, 20), Fate::refused },
             { "binary", "\x01\xff\xfe{"s, Fate::refused },
             { "null", "null", Fate::refused },
             { "array", "[]", Fate::refused },
             { "scalar", "7", Fate::refused },
             { "no header", R"({"steps":3})", Fate::refused },
             { "other product", R"({"product":"Toys","version":"0.7.3"})", Fate::refused },
             { "product of a wrong type", R"({"product":["Toy"],"version":"0.7.3"})", Fate::refused },
             { "too old", ofVersion (R"("0.5.2")"), Fate::refused },
             { "just new enough", ofVersion (R"("0.5.3")"), Fate::loads },
             { "from the future", ofVersion (R"("99.0.0")"), Fate::loads },
             { "version as a number", ofVersion ("7"), Fate::refused },
             { "version of two parts", ofVersion (R"("7.3")"), Fate::refused },
             { "negative version", ofVersion (R"("7.-1.0")"), Fate::refused },
             { "no NUL", text ({}) + "\n", Fate::loads },
             { "anything behind the NUL", text ({}) + "\n\0]]]"s, Fate::loads },
             { "invalid UTF-8", text ("\"comment\":\"??\",").replace (12, 2, "\xc3\x28"), Fate::refused },
             { "not a number", text ("\"steps\":NaN,"), Fate::refused },
             { "infinite number", text ("\"steps\":1e999,"), Fate::refused },
             { "huge number", text ("\"steps\":1e300,"), Fate::loads },
             { "many arrays",
               text ("\"x\":" + juce::String (repeated ("[", 100'000) + repeated ("]", 100'000)) + ","),
               Fate::refused },
             { "arrays without end", repeated ("[", 100'000), Fate::refused },
             { "the last of two products is ours",
               R"({"product":"No","product":"Toy","version":"0.7.3"})",
               Fate::loads },
             { "the last of two products is none",
               R"({"product":"Toy","product":{},"version":"0.7.3"})",
               Fate::refused },
             { "product further down", R"({"x":{"product":"Toy"},"version":"0.7.3"})", Fate::refused },
             { "wrong types",
               R"({"product":"Toy","version":"0.7.3","name":5,"id":[],"dirty":"?","steps":{},"gain":null})",
               Fate::loads },
             { "text for a number", text ("\"steps\":\"many\","), Fate::breaksOff } };
}

TEST_F (HostilePresets, AreListedAndLoadedOnlyIfValid)
{
    for (const auto& [what, text, fate] : rows())
    {
        const auto file = user (juce::String (what) + ".json");
        write (file, text);

        Toy fresh (root);
        EXPECT_EQ (fresh.isValidFile (file), fate != Fate::refused) << what;
        EXPECT_EQ (fresh.isValid (PresetFile::read (file)), fate != Fate::refused) << what << ": whole";

        if (fate == Fate::breaksOff)
            EXPECT_THROW (fresh.load (file), std::invalid_argument) << what;
        else
            EXPECT_EQ (fresh.load (file).is_object(), fate == Fate::loads) << what;

        EXPECT_EQ (fresh.getName(), fate == Fate::refused ? "Init" : juce::String (what));
    }

    std::set<juce::String> visited;

    for (std::size_t i = 0; i < toy.getList().size(); ++i)
    {
        toy.step (-1);
        visited.insert (toy.getName());
    }

    EXPECT_EQ (visited.size(), toy.getList().size()) << "also those that break off";
}

TEST_F (HostilePresets, OfAnyKindDoNotHoldUpTheList)
{
    write (user ("good.json"), presetText ("g").toStdString());
    write (user ("long.json"), presetText ("l").toStdString());
    std::filesystem::resize_file (user ("long.json").getFullPathName().toStdString(), 200'000'000);
    EXPECT_EQ (::mkfifo (user ("pipe.json").getFullPathName().toRawUTF8(), 0600), 0);
    user ("folder.json/loop").createDirectory();

    for (const auto& [link, target] : { std::pair { "folder.json/loop/up", user ("") },
                                        { "endless.json", juce::File ("/dev/zero") },
                                        { "nowhere.json", user ("gone.json") },
                                        { "itself.json", user ("itself.json") } })
        target.createSymbolicLink (user (link), true);

    ASSERT_EQ (toy.getList().size(), 1u);
    EXPECT_EQ (toy.getList()[0].id, "g");
    EXPECT_TRUE (toy.load (user ("folder.json")).is_null());
    EXPECT_TRUE (toy.load (juce::File()).is_null());
    EXPECT_TRUE (toy.load (user ("pipe.json")).is_null());
}

TEST_F (HostilePresets, AreRememberedByTheirHeadersAlone)
{
    const auto longId = juce::String::repeatedString (juce::CharPointer_UTF8 ("\xf0\x9f\x8e\xb9"), 5000);
    juce::String members;

    for (auto i = 0; i < 10'000; ++i)
        members << "\"x" << i << "\":\"y\",";

    const auto text = presetText (longId, members).toStdString();
    EXPECT_LT (readHeader (text).dump().size(), 5000u);

    write (user ("long.json"), text);
    toy.load (user ("long.json"));
    ASSERT_EQ (toy.getList().size(), 1u);
    EXPECT_EQ (toy.getList()[0].id, toy.getId()) << "or nobody could step on from it";
    EXPECT_EQ (toy.getId().length(), 1024);
}

TEST_F (HostilePresets, MayBeTenThousand)
{
    constexpr auto number = 10'000;

    for (auto i = 0; i < number; ++i)
        write (user (juce::String (i % 100) + "/" + juce::String (i) + ".json"),
               presetText (juce::String (i)).toStdString());

    ASSERT_EQ (toy.getList().size(), static_cast<std::size_t> (number));
    EXPECT_EQ (toy.getList()[1].id, "100");
}
} // namespace
} // namespace Zn::Presets::Tests
