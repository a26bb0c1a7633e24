#include "Foundation/Events/SharedTimer.h"

#include "Foundation/Events/TimerCallback.h"
#include "Foundation/Singleton.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Zn::Events
{
namespace
{
constexpr auto longestPause = 3 * SharedTimer::intervalMilliseconds; // between two frames

/** Leaves it to the message thread to delete the timer: when the last user goes on another thread, or inside a
    tick, that thread may be in the timer's function or about to call it.
*/
class TimerOwner
{
public:
    TimerOwner() = default;

    ~TimerOwner()
    {
        timer->stop();
        juce::MessageManager::callAsync ([last = std::move (timer)] {});
    }

    TimerOwner (const TimerOwner&) = delete;
    TimerOwner& operator= (const TimerOwner&) = delete;

    SharedTimer& get() const noexcept { return *timer; }

private:
    std::shared_ptr<SharedTimer> timer = std::make_shared<SharedTimer>();
};
} // namespace

SharedTimer& SharedTimer::getInstance()
{
    return Singleton::get<TimerOwner>().get();
}

SharedTimer::SharedTimer()
{
    startTimer (intervalMilliseconds);
}

SharedTimer::~SharedTimer()
{
    stopTimer();
}

void SharedTimer::stop()
{
    stopTimer();
}

void SharedTimer::add (TimerCallback& callback)
{
    const juce::ScopedLock scopedLock (lock);
    pending.push_back (&callback);
}

void SharedTimer::remove (TimerCallback& callback) noexcept
{
    const juce::ScopedLock scopedLock (lock);
    std::erase (pending, &callback);
    std::replace (active.begin(), active.end(), &callback, static_cast<TimerCallback*> (nullptr));
}

void SharedTimer::timerCallback()
{
    if (getTimerInterval() == longestPause)
        startTimer (intervalMilliseconds);

    tick (juce::Time::getMillisecondCounter());
}

void SharedTimer::frame (juce::uint32 now)
{
    constexpr auto tolerance = 4u; // milliseconds: frames do not come evenly

    if (now - lastTick + tolerance < juce::uint32 (intervalMilliseconds))
        return;

    startTimer (longestPause); // it comes only when no more frames do
    tick (now);
}

void SharedTimer::tick (juce::uint32 now)
{
    lastTick = now;
    const juce::ScopedLock scopedLock (lock);

    if (isTicking) // a modal loop inside a callback
        return;

    const juce::ScopedValueSetter<bool> ticking (isTicking, true);
    applyPending();

    for (size_t i = 0; i < active.size(); ++i)
    {
        try
        {
            if (auto* callback = active[i])
                callback->tick();
        }
        catch (...) // the others' turn comes all the same, and the host's message loop knows nothing of ours
        {}
    }

    applyPending();
}

void SharedTimer::applyPending()
{
    std::erase (active, nullptr);
    active.insert (active.end(), pending.begin(), pending.end());
    pending.clear();
}
} // namespace Zn::Events
