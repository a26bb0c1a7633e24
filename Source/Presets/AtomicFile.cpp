#include "Presets/AtomicFile.h"

#include "Presets/NativePath.h"

namespace Zn::Presets
{
namespace
{
const juce::String temporaryExtension { ".part" };
const auto longestWrite =
    juce::RelativeTime::minutes (1.0); // an older temporary file belongs to nobody any more

juce::String temporaryPrefix (const juce::File& target)
{
    return "." + target.getFileName() + ".";
}

juce::File temporaryFor (const juce::File& target)
{
    const auto stamp = juce::String::toHexString (juce::Random::getSystemRandom().nextInt64());
    return target.getSiblingFile (temporaryPrefix (target) + stamp + temporaryExtension);
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
    const auto temporary = temporaryFor (target);

    if (writeWhole (temporary, content, durability) && moveOver (temporary, target))
        return true;

    temporary.deleteFile();
    return false;
}
} // namespace Zn::Presets
