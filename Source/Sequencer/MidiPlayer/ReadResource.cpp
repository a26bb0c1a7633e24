#include "Sequencer/MidiPlayer/ReadResource.h"

#include "Foundation/NativePath.h"
#include "Sequencer/MidiPlayer/ChordFiles.h"

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
std::span<const std::byte> bytesOf (const juce::MemoryBlock& content)
{
    return std::as_bytes (std::span (content.begin(), content.getSize()));
}

/** Whether it can be read without waiting for anything, as a pipe would want. */
bool isSmallRegularFile (const juce::String& path)
{
    std::error_code error;
    const auto native = nativePath (juce::File (path));

    return std::filesystem::is_regular_file (native, error)
           && std::filesystem::file_size (native, error) <= largestFile && ! error;
}

juce::MemoryBlock contentOf (const juce::String& path)
{
    juce::MemoryBlock content;

    if (juce::File::isAbsolutePath (path) && isSmallRegularFile (path))
        juce::File (path).loadFileAsData (content);

    return content;
}

std::shared_ptr<const Song> readEncoded (const std::string& base64)
{
    juce::MemoryOutputStream content;

    if (! juce::Base64::convertFromBase64 (content, base64))
        return nullptr;

    return readSong (bytesOf (content.getMemoryBlock()));
}
} // namespace

std::shared_ptr<const Song> readSong (const Resource& resource)
{
    switch (resource.type)
    {
    case Resource::Type::binary:
        return readEncoded (resource.data);
    case Resource::Type::sharedBinary:
        return readSong (chordFile (resource.name));
    case Resource::Type::externalFile:
        return readSong (bytesOf (contentOf (juce::String::fromUTF8 (resource.data.c_str()))));
    case Resource::Type::none:
        break;
    }

    return nullptr;
}

Resource embedded (const juce::String& name)
{
    return { Resource::Type::sharedBinary, name.toStdString(), {} };
}

Resource resourceOf (const juce::File& file)
{
    const auto path = file.getFullPathName();
    const auto name = file.getFileNameWithoutExtension().toStdString();

    if (! file.isAChildOf (juce::File::getSpecialLocation (juce::File::tempDirectory)))
        return { Resource::Type::externalFile, name, path.toStdString() };

    const auto content = contentOf (path);
    return { Resource::Type::binary,
             name,
             juce::Base64::toBase64 (content.getData(), content.getSize()).toStdString() };
}
} // namespace Zn::Sequencer::MidiPlayer
