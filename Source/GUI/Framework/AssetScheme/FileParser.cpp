#include "GUI/Framework/AssetScheme/FileParser.h"

#include "Foundation/NativePath.h"

#include <utility>

namespace Zn::GUI::AssetScheme
{
FileParser::FileParser (juce::File fileToWatch, CallbackFunc callbackToUse)
    : file (std::move (fileToWatch)), callback (std::move (callbackToUse)), modified (readTime())
{
    constexpr auto intervalMilliseconds = 500;
    startTimer (intervalMilliseconds);
}

void FileParser::check()
{
    const auto now = readTime();

    if (now == modified)
        return;

    modified = now;
    callback();
}

FileParser::Time FileParser::readTime() const
{
    std::error_code error; // while there is no file: the earliest time
    return std::filesystem::last_write_time (nativePath (file), error);
}
} // namespace Zn::GUI::AssetScheme
