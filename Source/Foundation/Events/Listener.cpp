#include "Foundation/Events/Listener.h"

#include "Foundation/Events/Broadcaster.h"
#include "Foundation/Events/HasBroadcaster.h"

#include <utility>

namespace Zn::Events
{
Listener::Listener (CallbackFunc callbackToUse) : callback (std::move (callbackToUse)) {}

Listener::Listener (Broadcaster& source, CallbackFunc callbackToUse) : Listener (std::move (callbackToUse))
{
    source.add (*this);
}

Listener::Listener (HasBroadcaster& source, CallbackFunc callbackToUse)
    : Listener (source.getBroadcaster(), std::move (callbackToUse))
{}

Listener::~Listener()
{
    detach();
}

void Listener::detach() noexcept
{
    if (broadcaster != nullptr)
        broadcaster->remove (*this);
}

void clearListener (Listener*& slot) noexcept
{
    if (auto* listener = std::exchange (slot, nullptr))
        listener->detach();
}
} // namespace Zn::Events
