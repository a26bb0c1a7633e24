#include "GUI/Framework/AssetScheme/UserColours.h"

#include "Foundation/Trash.h"
#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI::AssetScheme
{
namespace
{
constexpr juce::int64 largestFile = 1024 * 1024; // bytes
}

UserColours::UserColours (const juce::File& file) : watcher (file, [this] { load(); })
{
    load();
}

void UserColours::reset()
{
    const auto& file = watcher.getFile();

    if (file.existsAsFile() && ! moveToTrash (file))
        file.deleteFile();

    watcher.check();
    Base::get().resetUserColours(); // even where the file cannot be removed
}

void UserColours::load()
{
    const auto& file = watcher.getFile();
    const auto isReadable = file.existsAsFile() && file.getSize() <= largestFile;
    Base::get().setUserColours (isReadable ? file.loadFileAsString().toStdString() : std::string());
}
} // namespace Zn::GUI::AssetScheme
