#pragma once

#include "Foundation/CallbackFunc.h"

namespace Zn::Events
{
class Broadcaster;
class HasBroadcaster;

/** Calls a function whenever a broadcaster reports a change, until it is destroyed or the broadcaster is.

    Follows one broadcaster at a time. Held by value by whoever wants to know; may be destroyed
    during a call, also by its own function, which must then not touch its captures any more.
    Thread: that of its broadcaster.
*/
class Listener
{
public:
    explicit Listener (CallbackFunc callbackToUse);
    Listener (Broadcaster& source, CallbackFunc callbackToUse);
    Listener (HasBroadcaster& source, CallbackFunc callbackToUse);
    ~Listener();

    Listener (const Listener&) = delete;
    Listener& operator= (const Listener&) = delete;

    /** Stops following; does nothing when it follows nobody. */
    void detach() noexcept;

    bool isAttached() const noexcept { return broadcaster != nullptr; }

private:
    friend class Broadcaster;
    friend void clearListener (Listener*& slot) noexcept;

    CallbackFunc callback;
    Broadcaster* broadcaster = nullptr;
};

/** Detaches the listener that a slot names, and empties the slot. Does nothing to an empty one. */
void clearListener (Listener*& slot) noexcept;
} // namespace Zn::Events
