#pragma once

#include "Foundation/Events/TimerCallback.h"

#include <atomic>

namespace Zn::Events
{
/** Calls a function about every so many milliseconds, as long as it is switched on: what the screen polls for.

    Counts ticks of the shared timer, so over time the interval is kept, though a single call may come up to
    one tick late. Made and destroyed on any thread, the function is called on the message thread.
*/
class UpdateTimer
{
public:
    UpdateTimer (int intervalToUse, CallbackFunc callbackToUse); // milliseconds, above 0

    /** Off: neither called nor counted; a later start begins a whole interval. Thread: any. */
    void setActive (bool shouldBeActive) noexcept { active.store (shouldBeActive); }
    bool isActive() const noexcept { return active.load(); }

    static constexpr int screenInterval = 33; // milliseconds

private:
    void count();

    const int interval; // milliseconds
    const CallbackFunc callback;
    int elapsed = 0;                   // milliseconds; thread: message
    std::atomic<bool> active { true }; // written: any, read: message
    const TimerCallback timer;
};
} // namespace Zn::Events
