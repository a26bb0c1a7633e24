#pragma once

#include <juce_core/juce_core.h>

#include <filesystem>
#include <string>

namespace Zn
{
/** A file for the standard library, whose functions tell what they did and follow no link unasked. */
inline std::filesystem::path nativePath (const juce::File& file)
{
    const auto path = file.getFullPathName().toStdString();
    return std::filesystem::path (std::u8string (path.begin(), path.end()));
}

inline juce::File fileFromPath (const std::filesystem::path& path)
{
    const auto text = path.u8string();
    return juce::File (juce::String::fromUTF8 (std::string (text.begin(), text.end()).c_str()));
}
} // namespace Zn
