#pragma once

#include "Foundation/Events/Broadcaster.h"

namespace Zn::Events
{
/** Base of anything that can be listened to. A copy starts without listeners and an assignment leaves each
    side its own: who listens to an object does not listen to what it is copied to.
*/
class HasBroadcaster
{
public:
    HasBroadcaster() = default;
    HasBroadcaster (const HasBroadcaster&) noexcept {}
    HasBroadcaster& operator= (const HasBroadcaster&) noexcept { return *this; }
    virtual ~HasBroadcaster() = default;

    Broadcaster& getBroadcaster() noexcept { return broadcaster; }

    void callListeners() { broadcaster.callListeners(); }

private:
    Broadcaster broadcaster;
};
} // namespace Zn::Events
