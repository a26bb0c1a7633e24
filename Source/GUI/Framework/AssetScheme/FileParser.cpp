#include "GUI/Framework/AssetScheme/FileParser.h"

#include <utility>

namespace Zn::GUI::AssetScheme
{
FileParser::FileParser (juce::File fileToWatch, CallbackFunc callbackToUse)
    : file (std::move (fileToWatch))
    , callback (std::move (callbackToUse))
    , modified (file.getLastModificationTime())
{
    constexpr auto intervalMilliseconds = 500;
    startTimer (intervalMilliseconds);
}

void FileParser::check()
{
    const auto now = file.getLastModificationTime();

    if (now == modified)
        return;

    modified = now;
    callback();
}
} // namespace Zn::GUI::AssetScheme
