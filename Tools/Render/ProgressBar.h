#pragma once

#include <juce_core/juce_core.h>

namespace Zn::Render
{
/** Shows on the terminal how far the render is. Silent when the error stream is not a terminal. */
class ProgressBar
{
public:
    ProgressBar();
    ~ProgressBar(); // leaves an empty line behind

    ProgressBar (const ProgressBar&) = delete;
    ProgressBar& operator= (const ProgressBar&) = delete;

    void show (juce::int64 done, juce::int64 total);

private:
    bool onTerminal;
    juce::uint32 lastShown = 0; // milliseconds
};
} // namespace Zn::Render
