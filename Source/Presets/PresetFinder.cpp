#include "Presets/PresetFinder.h"

#include "Foundation/NativePath.h"
#include "Presets/PresetFile.h"

#include <algorithm>
#include <set>

namespace Zn::Presets
{
namespace
{
namespace fs = std::filesystem;

constexpr auto mostEntries = 50'000; // that are looked at
constexpr auto deepestFolder = 32;

struct FoundFile
{
    juce::File file;
    juce::String path; // from the folder that was searched, without the extension
};

/** Says of each folder once that it is new, by whichever links it is reached. */
class VisitedFolders
{
public:
    bool addIfNew (const fs::path& folder)
    {
        std::error_code error;
        const auto real = fs::canonical (folder, error);
        return ! error && paths.insert (real).second;
    }

private:
    std::set<fs::path> paths;
};

bool isPreset (const fs::directory_entry& entry, const juce::File& file, const juce::String& extension)
{
    std::error_code error;
    return PresetFile::hasExtension (file, extension) && entry.is_regular_file (error);
}

std::vector<FoundFile> search (const juce::File& folder, const juce::String& extension)
{
    constexpr auto options =
        fs::directory_options::follow_directory_symlink | fs::directory_options::skip_permission_denied;

    std::vector<FoundFile> found;
    std::error_code error;
    VisitedFolders visited;
    visited.addIfNew (nativePath (folder));

    auto numSeen = 0;

    for (fs::recursive_directory_iterator it (nativePath (folder), options, error), end;
         ! error && it != end && numSeen < mostEntries;
         it.increment (error), ++numSeen)
    {
        std::error_code notThere;

        if (it->is_directory (notThere))
        {
            if (it.depth() >= deepestFolder || ! visited.addIfNew (it->path()))
                it.disable_recursion_pending();
        }
        else if (const auto file = fileFromPath (it->path()); isPreset (*it, file, extension))
        {
            const auto path = file.getRelativePathFrom (folder);
            found.push_back ({ file, path.dropLastCharacters (extension.length() + 1) });
        }
    }

    return found;
}

bool comesBefore (const FoundFile& a, const FoundFile& b)
{
    const auto order = a.path.compareNatural (b.path);
    return order != 0 ? order < 0 : a.path.compare (b.path) < 0;
}
} // namespace

std::vector<juce::File> findPresetFiles (const juce::File& folder, const juce::String& extension)
{
    auto found = search (folder, extension);
    std::stable_sort (found.begin(), found.end(), comesBefore);

    std::vector<juce::File> files;
    files.reserve (found.size());

    for (const auto& one : found)
        files.push_back (one.file);

    return files;
}
} // namespace Zn::Presets
