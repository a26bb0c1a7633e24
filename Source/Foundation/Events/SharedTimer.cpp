#include "Foundation/Events/SharedTimer.h"

#include "Foundation/Events/TimerCallback.h"
#include "Foundation/Singleton.h"

#include <algorithm>

namespace Zn::Events
{
SharedTimer& SharedTimer::getInstance()
{
    return Singleton::get<SharedTimer>();
}

SharedTimer::SharedTimer()
{
    startTimer (intervalMilliseconds);
}

SharedTimer::~SharedTimer()
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
    const juce::ScopedLock scopedLock (lock);

    if (isTicking) // a modal loop inside a callback
        return;

    const juce::ScopedValueSetter<bool> ticking (isTicking, true);
    applyPending();

    for (size_t i = 0; i < active.size(); ++i)
        if (auto* callback = active[i])
            callback->tick();

    applyPending();
}

void SharedTimer::applyPending()
{
    std::erase (active, nullptr);
    active.insert (active.end(), pending.begin(), pending.end());
    pending.clear();
}
} // namespace Zn::Events
