#pragma once

#include "Foundation/CallbackFunc.h"

namespace Zn::Events
{
/** Calls a function on every tick of the shared timer, from its construction to its destruction.

    Made and destroyed on any thread; the function is called on the message thread. Its owner keeps a
    Singleton::UserToken.
*/
class TimerCallback
{
public:
    explicit TimerCallback (CallbackFunc callbackToUse);
    ~TimerCallback();

    TimerCallback (const TimerCallback&) = delete;
    TimerCallback& operator= (const TimerCallback&) = delete;

    /** Thread: message. */
    void tick() const { callback(); }

private:
    const CallbackFunc callback;
};
} // namespace Zn::Events
