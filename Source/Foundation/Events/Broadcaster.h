#pragma once

#include <vector>

namespace Zn::Events
{
class Listener;

/** Keeps the listeners of one object and calls them, the newest first.

    Listeners may come and go during a call, and the broadcaster itself may be destroyed by one: whoever has
    left is not called any more, whoever came is called next time. All use of one broadcaster is on one thread
    at a time, that of the object it belongs to.
*/
class Broadcaster
{
public:
    Broadcaster() = default;
    ~Broadcaster();

    Broadcaster (const Broadcaster&) = delete;
    Broadcaster& operator= (const Broadcaster&) = delete;

    /** Makes a listener follow this broadcaster and no other. */
    void add (Listener& listener);
    void remove (Listener& listener) noexcept;

    void callListeners();

    int getNumListeners() const noexcept;

private:
    struct Walk;

    void removeEmptySlots() noexcept;

    std::vector<Listener*> slots; // null: left during a call
    Walk* innermostWalk = nullptr;
};
} // namespace Zn::Events
