#pragma once

#include <juce_events/juce_events.h>

#include <vector>

namespace Zn::Events
{
class TimerCallback;

/** The one timer behind all periodic work of the message thread, however many plug-in instances there are.

    Callbacks may come and go at any time, also during a tick and from other threads: a removal waits for a
    running tick, unless it happens inside it, and is not called afterwards. A callback must not wait for a
    thread that adds or removes one. What it throws ends there.
*/
class SharedTimer : private juce::Timer
{
public:
    static SharedTimer& getInstance();

    SharedTimer();
    ~SharedTimer() override;

    /** Thread: any. */
    void add (TimerCallback& callback);
    void remove (TimerCallback& callback) noexcept;

    /** No ticks begin from now on; one may be under way. Thread: any. */
    void stop();

    /** Calls everyone once, as the clock does. Thread: message. */
    void timerCallback() override;

    /** Told of each frame of a window and of its time in milliseconds, calls everyone with the one that is about due.
        Meanwhile the clock waits: that it would wake two threads once more costs more than a tick. Thread: message.
    */
    void frame (juce::uint32 now);

    static constexpr int intervalMilliseconds =
        33; // as often as the screen is looked at: each tick wakes two threads

private:
    void tick (juce::uint32 now);
    void applyPending();

    juce::CriticalSection lock; // held during callbacks; the message thread may take it again inside them
    std::vector<TimerCallback*> active;  // null: removed during a tick
    std::vector<TimerCallback*> pending; // added since the last tick
    bool isTicking = false;
    juce::uint32 lastTick = 0; // milliseconds
};
} // namespace Zn::Events
