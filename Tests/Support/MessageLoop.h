#pragma once

#include <juce_events/juce_events.h>

#include <chrono>

namespace juce
{
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages); // what JUCE's own loops call
}

namespace Zn::Tests
{
/** Serves the message queue until the condition holds; false when it does not within the time. A test that wants the
    message thread blocked just does not call this.
*/
template <typename Condition>
bool runMessageLoopUntil (Condition&& condition,
                          std::chrono::milliseconds timeout = std::chrono::seconds (10))
{
    const auto end = std::chrono::steady_clock::now() + timeout;

    while (! condition())
    {
        if (std::chrono::steady_clock::now() > end)
            return false;

        if (! juce::dispatchNextMessageOnSystemQueue (true))
            juce::Thread::sleep (1);
    }

    return true;
}

/** Serves whatever is in the queue now. */
inline void runPendingMessages()
{
    while (juce::dispatchNextMessageOnSystemQueue (true))
    {}
}
} // namespace Zn::Tests
