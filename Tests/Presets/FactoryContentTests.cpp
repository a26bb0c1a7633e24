#include "Presets/ChildProcess.h"
#include "Presets/FactoryArchive.h"
#include "Presets/FactoryContent.h"
#include "Presets/ToyLibrary.h"

#include <gmock/gmock.h>

#include <cstring>

namespace Zn::Presets::Tests
{
namespace
{
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

struct FactoryContent : LibraryTest
{
    const juce::File folder = root.getChildFile ("Factory");

    std::vector<juce::String> filesBelow (const juce::File& parent) const
    {
        std::vector<juce::String> paths;

        for (const auto& file :
             parent.findChildFiles (juce::File::findFilesAndDirectories | juce::File::ignoreHiddenFiles,
                                    true))
            paths.push_back (file.getRelativePathFrom (parent));

        return paths;
    }
};

/** Overwrites a field of every entry in the archive's directory. */
void patchDirectory (Zip& zip, std::size_t offset, std::uint32_t value)
{
    constexpr std::string_view signature { "PK\x01\x02" };
    const std::string_view bytes (zip.data(), zip.get().size());

    for (auto at = bytes.find (signature); at != bytes.npos; at = bytes.find (signature, at + 1))
        std::memcpy (zip.data() + at + offset, &value, sizeof (value));
}

constexpr std::size_t sizeField = 24, attributeField = 38, positionField = 42;

TEST_F (FactoryContent, IsBroughtToWhatTheArchiveHolds)
{
    const Zip zip { { "WELCOME.json", "new" },
                    { "Basics/Piano.json", "piano" },
                    { "__MACOSX/._x", "x" },
                    { "Empty/", "" } };
    write (folder.getChildFile ("WELCOME.json"), "old"); // as long as the new one
    write (folder.getChildFile ("Mine.json"), "mine");
    write (folder.getChildFile ("__MACOSX/left"), "from an earlier version");

    installFactoryContent (zip.get(), folder);
    EXPECT_THAT (filesBelow (folder),
                 UnorderedElementsAre ("WELCOME.json", "Basics", "Basics/Piano.json", "Mine.json"));
    EXPECT_EQ (folder.getChildFile ("WELCOME.json").loadFileAsString(), "new");
}

TEST_F (FactoryContent, LeavesFilesAloneThatAreRight)
{
    const Zip zip { { "A.json", "a" } };
    installFactoryContent (zip.get(), folder);
    const auto file = folder.getChildFile ("A.json");
    const auto longAgo = juce::Time (2020, 1, 1, 12, 0);
    file.setLastModificationTime (longAgo);

    installFactoryContent (zip.get(), folder);
    EXPECT_EQ (file.getLastModificationTime(), longAgo);
}

TEST_F (FactoryContent, StaysInItsFolderWhateverTheNames)
{
    const auto outside = root.getChildFile ("outside");
    outside.createDirectory();
    folder.createDirectory();
    outside.createSymbolicLink (folder.getChildFile ("Link"), true);

    const Zip zip { { "../up.json", "" },   { "a/../../up.json", "" },
                    { "..\\up.json", "" },  { root.getChildFile ("absolute.json").getFullPathName(), "" },
                    { "~/home.json", "" },  { "C:/drive.json", "" },
                    { "a//b.json", "" },    { "Link/through.json", "" },
                    { "good.json", "good" } };
    installFactoryContent (zip.get(), folder);

    EXPECT_THAT (filesBelow (root),
                 UnorderedElementsAre ("outside", "Factory", "Factory/Link", "Factory/good.json"));
}

TEST_F (FactoryContent, WritesOverALinkNotThroughIt)
{
    const auto precious = root.getChildFile ("precious");
    write (precious, "mine");
    folder.createDirectory();
    precious.createSymbolicLink (folder.getChildFile ("A.json"), true);

    installFactoryContent (Zip { { "A.json", "factory" } }.get(), folder);
    EXPECT_EQ (precious.loadFileAsString(), "mine");
    EXPECT_EQ (folder.getChildFile ("A.json").loadFileAsString(), "factory");
}

TEST_F (FactoryContent, TakesNothingThatIsNotWhatItSays)
{
    struct Row
    {
        const char* what;
        std::size_t field;
        std::uint32_t value;
    };

    const auto content = juce::String::repeatedString ("bomb", 2'500'000); // some kilobytes when packed
    const Zip whole { { "A.json", content } };

    for (const auto& [what, field, value] : { Row { "too long", 0, 0 },
                                              { "says less", sizeField, 10 },
                                              { "says the most allowed", sizeField, 8 * 1024 * 1024 },
                                              { "says more than there can be", sizeField, 0xffffffff },
                                              { "a link", attributeField, 0xA1FF0000 },
                                              { "lies nowhere", positionField, 0xfffffff0 },
                                              { "lies somewhere else", positionField, 3 } })
    {
        auto zip = whole;

        if (field != 0)
            patchDirectory (zip, field, value);

        installFactoryContent (zip.get(), folder);
        EXPECT_THAT (filesBelow (folder), ElementsAre()) << what;
    }
}

TEST_F (FactoryContent, SurvivesAnArchiveCutOrDamagedAnywhere)
{
    const Zip zip { { "A.json", "aaaaaaaaaaaaaaaaaaaa" }, { "B/C.json", "bcbcbcbcbcbcbcbcbcbc" } };
    const auto whole = zip.get();

    for (std::size_t i = 0; i < whole.size(); ++i)
    {
        installFactoryContent (whole.first (i), folder);

        std::vector<std::byte> damaged (whole.begin(), whole.end());
        damaged[i] ^= std::byte { 0x55 };
        FactoryArchive archive (damaged);

        for (auto entry = 0; entry < archive.size(); ++entry)
            archive.read (archive.pathOf (entry));
    }
}

TEST_F (FactoryContent, IsSilentWhereItCannotWrite)
{
    write (folder, "no folder");
    installFactoryContent (Zip { { "A.json", "a" } }.get(), folder);
    EXPECT_EQ (folder.loadFileAsString(), "no folder");
}

TEST_F (FactoryContent, IsWholeForReadersWhileProcessesInstall)
{
    const auto one = juce::String::repeatedString ("1", 40'000),
               two = juce::String::repeatedString ("2", 60'000);
    const Zip first { { "A.json", one }, { "B.json", one } },
        second ({ { "A.json", two }, { "B.json", two } });
    installFactoryContent (first.get(), folder);

    const auto installForever = [&] {
        for (;;)
            for (const auto* zip : { &first, &second })
                installFactoryContent (zip->get(), folder);
    };

    const ChildProcess processes[] { ChildProcess (installForever), ChildProcess (installForever) };
    const auto start = juce::Time::getMillisecondCounter();
    const auto elapsed = [start] { return juce::Time::getMillisecondCounter() - start; };
    auto numSeen = 0;

    while (elapsed() < 500 || (numSeen == 0 && elapsed() < 10'000)) // a machine may be busy
        for (const auto* name : { "A.json", "B.json" })
        {
            const auto text =
                juce::String (PresetFile::readBytes (folder.getChildFile (name)).value_or ("nothing"));
            ASSERT_TRUE (text == one || text == two) << text.length();
            numSeen += text == two ? 1 : 0;
        }

    EXPECT_GT (numSeen, 0) << "the processes did install";
}
} // namespace
} // namespace Zn::Presets::Tests
