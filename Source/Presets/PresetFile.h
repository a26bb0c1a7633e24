#pragma once

#include <juce_core/juce_core.h>
#include <nlohmann/json.hpp>

#include <optional>
#include <string>

namespace Zn::Presets
{
/** The physical form of preset files: UTF-8 JSON, keys sorted, indented by four, then a line feed and a NUL. */
namespace PresetFile
{
/** The bytes of a document as a file holds them. Does not throw, whatever the texts in it. */
std::string toBytes (const nlohmann::json& document);

/** The document of a file; null if there is no file, or none that can be a preset. Does not throw. */
nlohmann::json read (const juce::File& file);

/** What stands in a file. Only of a regular file (others may never come to an end) and one not too long. */
std::optional<std::string> readBytes (const juce::File& file);

/** Whether a file has an extension, in capitals or not. */
bool hasExtension (const juce::File& file, const juce::String& extension);

/** The file that is meant by what a user has chosen to save to: its name made legal, with the extension. No file
    if that is on no disk of this machine, has no name, or is a folder or write-protected: a file put in its place
    would not be.
*/
juce::File fileToSave (const juce::URL& destination, const juce::String& extension);
} // namespace PresetFile
} // namespace Zn::Presets
