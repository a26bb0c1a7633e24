#include "Presets/AtomicFile.h"
#include "Presets/ChildProcess.h"
#include "Presets/ToyLibrary.h"

#include <sys/resource.h>

#include <csignal>
#include <filesystem>

namespace Zn::Presets::Tests
{
namespace
{
struct AtomicFile : LibraryTest
{
    int numFiles() const { return root.getNumberOfChildFiles (juce::File::findFiles); }

    const juce::File file = root.getChildFile ("preset.json");
    const std::string one = std::string (100'000, '1'), two = std::string (150'000, '2');
};

std::string contentOf (const juce::File& file)
{
    return PresetFile::readBytes (file).value_or ("nothing");
}

TEST_F (AtomicFile, HoldsOldOrNewWheneverItsWriterIsKilled)
{
    ASSERT_TRUE (replaceFile (file, one, Durability::survivesPowerLoss));
    juce::Random random (1);

    for (auto round = 0; round < 200; ++round)
    {
        ChildProcess writer ([this] {
            for (;;)
                for (const auto* content : { &two, &one })
                    replaceFile (file, *content, Durability::survivesPowerLoss);
        });

        juce::Thread::sleep (random.nextInt (4));
        writer.kill();

        const auto found = contentOf (file);
        ASSERT_TRUE (found == one || found == two)
            << "torn in round " << round << ", " << found.size() << " bytes";
    }

    for (const auto& leftover : root.findChildFiles (juce::File::findFiles, false))
        leftover.setLastModificationTime (juce::Time::getCurrentTime() - juce::RelativeTime::hours (1));

    EXPECT_TRUE (replaceFile (file, two, Durability::canBeMadeAgain));
    EXPECT_EQ (contentOf (file), two);
    EXPECT_EQ (numFiles(), 1) << "what was left behind is cleared away";
}

TEST_F (AtomicFile, IsHowAPresetIsSaved)
{
    const auto old = presetText ("old").toStdString();
    const auto oldFile = root.getChildFile ("old file");
    write (file, old);
    std::filesystem::create_hard_link (file.getFullPathName().toStdString(),
                                       oldFile.getFullPathName().toStdString());

    Toy toy (root);
    toy.steps = 5;
    ASSERT_TRUE (toy.save (juce::URL (file)));
    EXPECT_EQ (contentOf (oldFile), old) << "never written in place";

    Toy reader (root);
    reader.load (file);
    EXPECT_EQ (reader.steps, 5);
}

TEST_F (AtomicFile, MayHaveANameAsLongAsTheDiskAllows)
{
    const auto longest = root.getChildFile (juce::String::repeatedString ("x", 250) + ".json");
    EXPECT_TRUE (replaceFile (longest, one, Durability::canBeMadeAgain));
    EXPECT_EQ (contentOf (longest), one);
}

TEST_F (AtomicFile, StaysAsItIsOnAFullDisk)
{
    ASSERT_TRUE (replaceFile (file, one, Durability::canBeMadeAgain));

    ChildProcess writer ([this] {
        std::signal (SIGXFSZ, SIG_IGN);
        const rlimit full { 120'000, 120'000 };
        ::setrlimit (RLIMIT_FSIZE, &full);
        return replaceFile (file, two, Durability::survivesPowerLoss);
    });

    EXPECT_FALSE (writer.getResult());
    EXPECT_EQ (contentOf (file), one);
    EXPECT_EQ (numFiles(), 1);
}

TEST_F (AtomicFile, StaysAsItIsInAFolderThatIsReadOnly)
{
    ASSERT_TRUE (replaceFile (file, one, Durability::canBeMadeAgain));
    root.setReadOnly (true);

    ChildProcess writer ([this] {
        ChildProcess::becomeNobody();
        Toy toy (root);
        return replaceFile (file, two, Durability::survivesPowerLoss) || toy.save (juce::URL (file));
    });

    EXPECT_FALSE (writer.getResult());
    root.setReadOnly (false);
    EXPECT_EQ (contentOf (file), one);
    EXPECT_EQ (numFiles(), 1);
}

TEST_F (AtomicFile, IsNotSavedOverWhenItIsWriteProtected)
{
    ASSERT_TRUE (replaceFile (file, one, Durability::canBeMadeAgain));
    file.setReadOnly (true);
    std::filesystem::permissions (root.getFullPathName().toStdString(), std::filesystem::perms::all);

    ChildProcess writer ([this] {
        ChildProcess::becomeNobody();
        Toy toy (root);
        return toy.save (juce::URL (root.getChildFile ("other.json"))) && ! toy.save (juce::URL (file));
    });

    EXPECT_TRUE (writer.getResult());
    EXPECT_EQ (contentOf (file), one);
}
} // namespace
} // namespace Zn::Presets::Tests
