#include "Presets/FactoryContent.h"

#include "Presets/AtomicFile.h"
#include "Presets/FactoryArchive.h"
#include "Presets/PresetFile.h"

#include <string>
#include <utility>

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

/** Writes what is missing, one file at a time, as all together may be more than fits into memory. */
void writeMissing (FactoryArchive& archive, const juce::File& folder)
{
    juce::InterProcessLock lock ("VornelFactoryContent");
    auto hasWaited = false;

    for (auto i = 0; i < archive.size(); ++i)
    {
        const auto path = archive.pathOf (i);

        if (path.isEmpty())
            continue;

        const auto file = folder.getChildFile (path);
        const auto content = archive.read (i);

        if (! content || holds (file, *content) || leadsThroughLink (file, folder))
            continue;

        // Without the lock the same is written twice, which harms nobody.
        if (! std::exchange (hasWaited, true))
            lock.enter (longestWaitForOthers);

        if (! holds (file, *content))
            replaceFile (file, *content, Durability::canBeMadeAgain);
    }
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
    writeMissing (archive, folder);
    removeForeignFolders (folder);
}
} // namespace Zn::Presets
