#pragma once

#include "Foundation/CallbackFunc.h"

#include <juce_events/juce_events.h>

namespace Zn::GUI::AssetScheme
{
/** Watches a file and calls a function when its time of modification has become another one: when it was
    written, or has come or gone. Does not call for what it finds at first. Thread: message.
*/
class FileParser : private juce::Timer
{
public:
    FileParser (juce::File fileToWatch, CallbackFunc callbackToUse);

    /** Looks at once, as the timer does twice a second. */
    void check();

    const juce::File& getFile() const noexcept { return file; }

private:
    void timerCallback() override { check(); }

    const juce::File file;
    const CallbackFunc callback;
    juce::Time modified;
};
} // namespace Zn::GUI::AssetScheme
