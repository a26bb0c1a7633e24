#pragma once

#include "Foundation/Binaries.h"

#include <juce_core/juce_core.h>

#include <optional>
#include <string>

namespace Zn::Presets
{
/** A zip archive that is part of the program, read where it stands in memory.

    Gives out ordinary files with a path that stays in its folder, and of those only whole ones; anything else in
    the archive is passed over, as are the folders that another system adds. Thread: one at a time.
*/
class FactoryArchive
{
public:
    explicit FactoryArchive (Binaries::Bytes zip);

    int size() const noexcept { return zipFile.getNumEntries(); }

    /** Relative, with slashes; empty if the entry is to be passed over. */
    juce::String pathOf (int index) const;

    /** What an entry says, if it is whole and not longer than a preset may be. */
    std::optional<std::string> read (int index);

    /** The same by path, capitals counting. */
    std::optional<std::string> read (const juce::String& path);

private:
    juce::MemoryInputStream stream;
    juce::ZipFile zipFile;
};

/** A part of a name by which the folders are known that archives made on another system carry. */
inline constexpr auto foreignFolder = "MACOS";
} // namespace Zn::Presets
