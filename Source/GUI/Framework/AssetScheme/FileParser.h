#pragma once

#include "Foundation/CallbackFunc.h"

#include <juce_events/juce_events.h>

#include <filesystem>

namespace Zn::GUI::AssetScheme
{
/** Watches a file and calls a function when its time of modification has become another one: when it was
    written, or has come or gone. Does not call for what it finds at first. The time is as fine as the file system's:
    JUCE's has steps of a second on some, and two editors may write within one. Thread: message.
*/
class FileParser : private juce::Timer
{
public:
    FileParser (juce::File fileToWatch, CallbackFunc callbackToUse);

    /** Looks at once, as the timer does twice a second. */
    void check();

    const juce::File& getFile() const noexcept { return file; }

private:
    using Time = std::filesystem::file_time_type;

    void timerCallback() override { check(); }
    Time readTime() const;

    const juce::File file;
    const CallbackFunc callback;
    Time modified;
};
} // namespace Zn::GUI::AssetScheme
