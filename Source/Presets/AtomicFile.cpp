#include "Presets/AtomicFile.h"

#include "Foundation/NativePath.h"

#include <cstdio>
#include <system_error>

namespace Zn::Presets
{
namespace
{
const juce::String temporaryExtension { ".part" };
const auto longestWrite = juce::RelativeTime::minutes (1.0); // a file left for longer is nobody's any more

/** Short, so that a file whose name is as long as the disk allows can be saved. */
juce::String temporaryPrefix (const juce::File& target)
{
    return "." + juce::String::toHexString (target.getFileName().hashCode64()) + ".";
}

/** Makes an empty file that was not there before, so that nobody else writes to it: not even a process that was
    forked from this one and draws the same random numbers.
*/
bool createExclusively (const juce::File& file)
{
    auto* const created = std::fopen (file.getFullPathName().toRawUTF8(), "wx");
    return created != nullptr && std::fclose (created) == 0;
}

/** No file if the folder takes none. */
juce::File createTemporaryFor (const juce::File& target)
{
    constexpr auto mostTries = 100;
    juce::Random random; // JUCE's shared one is for a single thread

    for (auto i = 0; i < mostTries; ++i)
    {
        const auto stamp = juce::String::toHexString (random.nextInt64());
        const auto file = target.getSiblingFile (temporaryPrefix (target) + stamp + temporaryExtension);

        if (createExclusively (file))
            return file;
    }

    return {};
}

void removeLeftovers (const juce::File& target)
{
    const auto oldest = juce::Time::getCurrentTime() - longestWrite;

    for (const auto& entry :
         juce::RangedDirectoryIterator (target.getParentDirectory(), false, "*" + temporaryExtension))
        if (entry.getFile().getFileName().startsWith (temporaryPrefix (target))
            && entry.getModificationTime() < oldest)
            entry.getFile().deleteFile();
}

bool writeWhole (const juce::File& file, std::string_view content, Durability durability)
{
    constexpr auto unbuffered = 0; // each write then tells whether the disk took it
    juce::FileOutputStream stream (file, unbuffered);

    if (stream.failedToOpen() || ! stream.write (content.data(), content.size()))
        return false;

    if (durability == Durability::survivesPowerLoss)
        stream.flush();

    return stream.getStatus().wasOk();
}

bool moveOver (const juce::File& source, const juce::File& target)
{
    std::error_code error;
    std::filesystem::rename (nativePath (source), nativePath (target), error);
    return ! error;
}
} // namespace

bool replaceFile (const juce::File& target, std::string_view content, Durability durability)
{
    if (! target.getParentDirectory().createDirectory())
        return false;

    removeLeftovers (target);
    const auto temporary = createTemporaryFor (target);

    if (temporary == juce::File())
        return false;

    if (writeWhole (temporary, content, durability) && moveOver (temporary, target))
        return true;

    temporary.deleteFile();
    return false;
}
} // namespace Zn::Presets
