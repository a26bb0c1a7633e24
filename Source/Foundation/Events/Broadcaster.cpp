#include "Foundation/Events/Broadcaster.h"

#include "Foundation/Events/Listener.h"

#include <algorithm>

namespace Zn::Events
{
/** One running call. Calls nest when a listener causes another; the broadcaster tells
    all of them when it dies.
*/
struct Broadcaster::Walk
{
    explicit Walk (Broadcaster& ownerToWalk) noexcept
        : owner (&ownerToWalk), outer (ownerToWalk.innermostWalk)
    {
        owner->innermostWalk = this;
    }

    ~Walk()
    {
        if (owner == nullptr)
            return;

        owner->innermostWalk = outer;

        if (outer == nullptr)
            owner->removeEmptySlots();
    }

    Walk (const Walk&) = delete;
    Walk& operator= (const Walk&) = delete;

    Broadcaster* owner; // null: destroyed meanwhile
    Walk* outer;
};

Broadcaster::~Broadcaster()
{
    for (auto* walk = innermostWalk; walk != nullptr; walk = walk->outer)
        walk->owner = nullptr;

    for (auto* listener : slots)
        if (listener != nullptr)
            listener->broadcaster = nullptr;
}

void Broadcaster::add (Listener& listener)
{
    if (listener.broadcaster == this)
        return;

    listener.detach();
    slots.push_back (&listener);
    listener.broadcaster = this;
}

void Broadcaster::remove (Listener& listener) noexcept
{
    const auto slot = std::find (slots.begin(), slots.end(), &listener);

    if (slot == slots.end())
        return;

    listener.broadcaster = nullptr;
    *slot = nullptr;

    if (innermostWalk == nullptr)
        slots.erase (slot);
}

void Broadcaster::callListeners()
{
    const Walk walk (*this);

    for (auto i = slots.size(); i-- > 0;)
    {
        if (auto* listener = slots[i]; listener != nullptr && listener->callback)
            listener->callback();

        if (walk.owner == nullptr)
            return;
    }
}

int Broadcaster::getNumListeners() const noexcept
{
    return static_cast<int> (slots.size()
                             - static_cast<std::size_t> (std::count (slots.begin(), slots.end(), nullptr)));
}

void Broadcaster::removeEmptySlots() noexcept
{
    std::erase (slots, nullptr);
}
} // namespace Zn::Events
