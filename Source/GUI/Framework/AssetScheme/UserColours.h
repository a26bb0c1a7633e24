#pragma once

#include "GUI/Framework/AssetScheme/FileParser.h"

namespace Zn::GUI::AssetScheme
{
/** Lays the colours of a user's own file over the built-in ones, now and whenever the file changes, as long as
    this exists. Where there is no file, or one that is no scheme of colours, the built-in ones stand.
    Thread: message.
*/
class UserColours
{
public:
    explicit UserColours (const juce::File& file);

    /** The name of the file, in a folder of the user's. */
    static constexpr auto fileName = "Colors.json";

    /** Back to the built-in colours for good: the file goes to the bin, or away where there is no bin. */
    void reset();

    /** Looks at the file at once. */
    void check() { watcher.check(); }

private:
    void load();

    FileParser watcher;
};
} // namespace Zn::GUI::AssetScheme
