#include "Presets/FactoryContent.h"

#include "Presets/AtomicFile.h"
#include "Presets/FactoryArchive.h"
#include "Presets/PresetFile.h"

#include <vector>

namespace Zn::Presets
{
namespace
{
constexpr auto longestWaitForOthers = 5000; // ms

bool leadsThroughLink (juce::File file, const juce::File& folder)
{
    for (file = file.getParentDirectory(); file.isAChildOf (folder); file = file.getParentDirectory())
        if (file.isSymbolicLink())
            return true;

    return false;
}

bool holds (const juce::File& file, const std::string& content)
{
    return ! file.isSymbolicLink() && file.getSize() == static_cast<juce::int64> (content.size())
           && PresetFile::readBytes (file) == content;
}

struct MissingFile
{
    juce::File file;
    std::string content;
};

std::vector<MissingFile> findMissing (FactoryArchive& archive, const juce::File& folder)
{
    std::vector<MissingFile> missing;

    for (auto i = 0; i < archive.size(); ++i)
    {
        const auto path = archive.pathOf (i);

        if (path.isEmpty())
            continue;

        const auto file = folder.getChildFile (path);
        auto content = archive.read (i);

        if (content && ! holds (file, *content) && ! leadsThroughLink (file, folder))
            missing.push_back ({ file, std::move (*content) });
    }

    return missing;
}

void writeMissing (const std::vector<MissingFile>& missing)
{
    juce::InterProcessLock lock ("VornelFactoryContent");
    lock.enter (longestWaitForOthers); // without it the same is written twice, which harms nobody

    for (const auto& [file, content] : missing)
        if (! holds (file, content))
            replaceFile (file, content, Durability::canBeMadeAgain);
}

void removeForeignFolders (const juce::File& folder)
{
    for (const auto& child : folder.findChildFiles (juce::File::findDirectories, false))
        if (child.getFileName().contains (foreignFolder))
            child.deleteRecursively();
}
} // namespace

void installFactoryContent (Binaries::Bytes zip, const juce::File& folder)
{
    if (zip.empty())
        return;

    FactoryArchive archive (zip);

    if (const auto missing = findMissing (archive, folder); ! missing.empty())
        writeMissing (missing);

    removeForeignFolders (folder);
}
} // namespace Zn::Presets
