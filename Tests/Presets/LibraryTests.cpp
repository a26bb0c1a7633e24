#include "Foundation/Events/Listener.h"
#include "Presets/Files/Tree.h"
#include "Presets/ToyLibrary.h"

#include <gmock/gmock.h>

#include <thread>

namespace Zn::Presets
{
std::ostream& operator<< (std::ostream& stream, const PresetEntry& entry)
{
    return stream << entry.file.getFullPathName() << " " << entry.id;
}

namespace Tests
{
namespace
{
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::MatchesRegex;

class PresetLibrary : public LibraryTest
{
protected:
    juce::File factory (const juce::String& path) const
    {
        return root.getChildFile ("Factory").getChildFile (path);
    }
    juce::File user (const juce::String& path) const
    {
        return root.getChildFile ("User").getChildFile (path);
    }

    /** Presets with their name as stamp. */
    void writePresets (std::initializer_list<juce::File> files)
    {
        for (const auto& file : files)
            write (file, presetText (file.getFileNameWithoutExtension()).toStdString());
    }

    void saveAs (const juce::File& file) { EXPECT_TRUE (toy.save (juce::URL (file))); }

    Toy toy { root };
};

std::string bytesOf (const juce::File& file)
{
    return PresetFile::readBytes (file).value_or ("nothing");
}

TEST_F (PresetLibrary, WritesSortedKeysALineFeedAndANul)
{
    toy.setDirty (true);
    toy.gain = 0.25;
    saveAs (user ("Mine.json"));

    const auto expected = "{\n    \"dirty\": false,\n    \"gain\": 0.25,\n    \"id\": \""
                          + toy.getId().toStdString()
                          + "\",\n    \"name\": \"Mine\",\n    \"product\": \"Toy\",\n    \"steps\": 16,\n"
                            "    \"version\": \"0.8.0\"\n}\n"
                          + std::string (1, '\0');

    EXPECT_EQ (bytesOf (user ("Mine.json")), expected);
    EXPECT_THAT (toy.getId().toStdString(),
                 MatchesRegex ("[0-9]+ [A-Z][a-z]+ 20[0-9]+ [0-9]+:[0-9]+:[0-9]+"));
    EXPECT_EQ (toy.getName(), "Mine");
    EXPECT_FALSE (toy.isDirty());
}

TEST_F (PresetLibrary, LoadsWhatItSavesUnderTheNameOfTheFile)
{
    toy.steps = 7;
    saveAs (user ("A.json"));
    user ("A.json").copyFileTo (user ("Crossing Melodies.JSON"));

    Toy other (root);
    other.setDirty (true);
    const auto document = other.load (user ("Crossing Melodies.JSON"));

    EXPECT_EQ (document["name"], "A") << "the document is that of the file";
    EXPECT_EQ (other.getName(), "Crossing Melodies");
    EXPECT_EQ (other.getId(), toy.getId());
    EXPECT_EQ (other.steps, 7);
    EXPECT_FALSE (other.isDirty());
}

TEST_F (PresetLibrary, KeepsWhatAFileDoesNotSay)
{
    write (user ("A.json"), presetText ("a", R"("gain":0.125,"unknown":[1],)").toStdString());
    toy.steps = 3;
    toy.load (user ("A.json"));

    EXPECT_EQ (toy.steps, 3);
    EXPECT_EQ (toy.gain, 0.125);
}

TEST_F (PresetLibrary, MakesNamesLegalAndSavesLocallyOnly)
{
    struct Row
    {
        juce::String asked, written;
    };

    for (const auto& [asked, written] :
         { Row { "v1.2", "v1.2.json" }, { "a:b?.json", "ab.json" }, { "C.JSON", "C.JSON" } })
    {
        EXPECT_TRUE (toy.save (juce::URL (user (asked)))) << asked;
        EXPECT_TRUE (user (written).existsAsFile()) << asked;
        EXPECT_EQ (toy.getName(), user (written).getFileNameWithoutExtension());
    }

    user ("Folder.json").createDirectory();
    user ("File").create();

    for (const auto& url : { juce::URL ("https://example.com/a.json"),
                             juce::URL (user ("???")),
                             juce::URL (user ("Folder.json")),
                             juce::URL (user ("File/below.json")) })
        EXPECT_FALSE (toy.save (url)) << url.toString (true);

    EXPECT_EQ (toy.getName(), "C") << "what was not saved keeps its name";
}

TEST_F (PresetLibrary, ListsFactoryThenUserByPathWithNumbersByValue)
{
    writePresets ({ user ("b 10.json"),
                    user ("B 9.json"),
                    user ("z/a.json"),
                    factory ("y.json"),
                    factory ("A/x.JSON") });
    write (user ("other.txt"), presetText ("t").toStdString());

    EXPECT_THAT (namesOf (toy.getList()), ElementsAre ("x", "y", "B 9", "b 10", "a"));
    EXPECT_EQ (toy.getList()[0].id, "x");

    saveAs (user ("b 9.5.json"));
    EXPECT_THAT (namesOf (toy.getList()), ElementsAre ("x", "y", "B 9", "b 9.5", "b 10", "a"));
    EXPECT_EQ (toy.getList()[3].id, toy.getId());

    const auto tree = getListTree (toy, user (""));
    ASSERT_EQ (tree.children.size(), 4u);
    EXPECT_TRUE (tree.children[3].isFolder);
    EXPECT_EQ (tree.children[3].children[0].file, user ("z/a.json"));
}

TEST_F (PresetLibrary, StepsRoundTheListFromWhereItStands)
{
    writePresets (
        { factory ("1.json"), factory ("2.json"), user ("3.json"), root.getChildFile ("elsewhere.json") });
    write (user ("copy.json"), presetText ("1").toStdString()); // the stamp of another

    struct Row
    {
        juce::File from;
        int direction;
        juce::String to;
    };

    for (const auto& [from, direction, to] : { Row { factory ("1.json"), 1, "2" },
                                               { factory ("1.json"), -1, "copy" },
                                               { user ("copy.json"), 1, "1" },
                                               { user ("3.json"), 1, "copy" },
                                               { root.getChildFile ("elsewhere.json"), 1, "1" },
                                               { root.getChildFile ("elsewhere.json"), -1, "copy" } })
    {
        toy.load (from);
        toy.step (direction);
        EXPECT_EQ (toy.getName(), to) << from.getFileName() << " " << direction;
    }

    toy.load (factory ("1.json"));
    factory ("2.json").deleteFile();
    toy.step (1);
    EXPECT_EQ (toy.getName(), "3") << "a file that has gone stops nobody";
}

TEST_F (PresetLibrary, StepsNowhereInAnEmptyList)
{
    toy.step (1);
    toy.step (-1);
    EXPECT_EQ (toy.getName(), "Init");
}

TEST_F (PresetLibrary, KeepsItsFirstVerdictButForWhatItSavesItself)
{
    EXPECT_TRUE (toy.load (user ("A.json")).is_null()) << "not there yet";
    write (user ("A.json"), "broken");
    EXPECT_TRUE (toy.load (user ("A.json")).is_null());
    writePresets ({ user ("A.json") });
    EXPECT_TRUE (toy.load (user ("A.json")).is_null()) << "edited from outside";

    saveAs (user ("A.json"));
    EXPECT_FALSE (toy.load (user ("A.json")).is_null());
    EXPECT_EQ (toy.getList().size(), 1u);

    Toy stranger (root, "Stranger");
    EXPECT_FALSE (stranger.isValidFile (user ("A.json"))) << "of another product";
    EXPECT_TRUE (toy.isValidFile (user ("A.json"))) << "whatever a stranger thinks of it";

    write (user ("A.json"), "broken");
    EXPECT_TRUE (toy.load (user ("A.json")).is_null()) << "nothing left to load";
}

TEST_F (PresetLibrary, ReportsEveryLoadFromBothSides)
{
    std::vector<std::string> heard;
    const Events::Listener before (toy.aboutToLoad,
                                   [&] { heard.push_back ("about " + std::to_string (toy.steps)); });
    const Events::Listener after (toy.loaded,
                                  [&] { heard.push_back ("loaded " + std::to_string (toy.steps)); });
    const auto apply = [this] (const char* text) {
        toy.applyDocument (nlohmann::json::parse (text), ReflectorContext::forUndo());
    };

    for (const auto* empty : { "{}", "[]", "null" })
        apply (empty);

    EXPECT_THAT (heard, ElementsAre());

    apply (R"({ "version": "0.8.0", "steps": 4, "dirty": true })");
    EXPECT_TRUE (toy.isDirty()) << "a document keeps it, a preset clears it";
    apply (R"({ "version": "0.5.2", "steps": 5 })");
    EXPECT_THROW (apply (R"({ "version": "0.8.0", "steps": 6, "gain": "loud" })"), std::invalid_argument);

    EXPECT_THAT (heard, ElementsAre ("about 16", "loaded 4", "about 4", "loaded 4", "about 4", "loaded 6"));
}

TEST_F (PresetLibrary, StartsWithItsDefaultAndFindsBackToInit)
{
    const Zip zip { { "Basics/Welcome.json", presetText ("w", R"("steps":5,)") } };
    toy.carry (zip);
    toy.init();

    EXPECT_EQ (toy.getName(), "Welcome");
    EXPECT_EQ (toy.getId(), "w");
    EXPECT_EQ (toy.steps, 5);
    EXPECT_TRUE (user ("").isDirectory());

    toy.loadInit();
    EXPECT_EQ (toy.getName(), "Init");
    EXPECT_EQ (toy.getId(), "");
    EXPECT_EQ (toy.steps, 16);

    Toy second (root);
    second.steps = 99; // is no first use
    second.carry (zip);
    second.init();
    second.loadInit();
    EXPECT_EQ (second.steps, 16);
}

TEST_F (PresetLibrary, SoundsTheSameWithoutAPlaceToInstallTo)
{
    root.create(); // a file where the folders would be
    const Zip zip { { "Basics/Welcome.json", presetText ("w", R"("steps":5,)") } };
    toy.carry (zip);
    toy.init();

    EXPECT_EQ (toy.getName(), "Welcome");
    EXPECT_EQ (toy.steps, 5);
    EXPECT_TRUE (toy.getList().empty());
}

TEST_F (PresetLibrary, StartsOnSeveralThreadsAtOnce)
{
    const Zip zip { { "Basics/Welcome.json", presetText ("w", R"("steps":5,)") } };
    std::vector<juce::String> names (4);

    {
        std::vector<std::jthread> threads;

        for (auto& name : names)
            threads.emplace_back ([this, &zip, &name] {
                Toy own (root);
                own.carry (zip);
                own.init();
                name = own.getName();
            });
    }

    EXPECT_THAT (names, ::testing::Each (juce::String ("Welcome")));
}

TEST_F (PresetLibrary, TakesTheDevelopmentFolderForTheFactoryFolder)
{
    const auto mine = root.getChildFile ("Dev/Toy/Mine.json");
    writePresets ({ mine });
    const Zip zip { { "Shipped.json", presetText ("s") } };
    toy.carry (zip);
    toy.prepareFirstUse();

    EXPECT_EQ (toy.getContentFolder(), root.getChildFile ("Dev/Toy"));
    EXPECT_THAT (namesOf (toy.getList()), ElementsAre ("Mine")) << "nothing is unpacked";
}
} // namespace
} // namespace Tests
} // namespace Zn::Presets
