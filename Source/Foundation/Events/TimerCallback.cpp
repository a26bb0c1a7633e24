#include "Foundation/Events/TimerCallback.h"

#include "Foundation/Events/SharedTimer.h"

namespace Zn::Events
{
TimerCallback::TimerCallback (CallbackFunc callbackToUse) : callback (std::move (callbackToUse))
{
    SharedTimer::getInstance().add (*this);
}

TimerCallback::~TimerCallback()
{
    SharedTimer::getInstance().remove (*this);
}
} // namespace Zn::Events
