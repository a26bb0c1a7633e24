#include "Foundation/Events/UpdateTimer.h"

#include "Foundation/Events/SharedTimer.h"

namespace Zn::Events
{
UpdateTimer::UpdateTimer (int intervalToUse, CallbackFunc callbackToUse)
    : interval (intervalToUse), callback (std::move (callbackToUse)), timer ([this] { count(); })
{}

void UpdateTimer::count()
{
    if (! active.load())
    {
        elapsed = 0;
        return;
    }

    elapsed += SharedTimer::intervalMilliseconds;

    if (elapsed < interval)
        return;

    elapsed %= interval;
    callback(); // last, as it may destroy the timer
}
} // namespace Zn::Events
