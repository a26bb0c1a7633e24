#include "Foundation/Events/GarbageCollector.h"

#include "Foundation/Singleton.h"

#include <algorithm>
#include <chrono>
#include <iterator>

namespace Zn::Events
{
namespace
{
constexpr auto passInterval = std::chrono::milliseconds (500);
} // namespace

GarbageCollector& GarbageCollector::getInstance()
{
    return Singleton::get<GarbageCollector>();
}

GarbageCollector::GarbageCollector() : thread ([this] (std::stop_token stop) { run (std::move (stop)); }) {}

GarbageCollector::~GarbageCollector()
{
    thread.request_stop();
    thread.join(); // makes its last pass
}

void GarbageCollector::add (std::unique_ptr<RefCountBase> holder)
{
    const std::scoped_lock lock (holdersLock);
    holders.push_back (std::move (holder));
}

void GarbageCollector::collectNow()
{
    const std::scoped_lock pass (passLock);

    while (! takeFree().empty())
    {} // freed at the end of each condition, outside holdersLock
}

void GarbageCollector::run (std::stop_token stop)
{
    while (! stop.stop_requested())
    {
        {
            std::unique_lock lock (holdersLock);
            wake.wait_for (lock, stop, passInterval, [] { return false; });
        }

        collectNow();
    }

    collectNow(); // the last pass: what was let go of while the one before ran
}

/** Takes out, in order, what only the collector still holds. */
GarbageCollector::Holders GarbageCollector::takeFree()
{
    const std::scoped_lock lock (holdersLock);

    const auto firstFree = std::stable_partition (holders.begin(), holders.end(), [] (const auto& holder) {
        return holder->getRefCount() > 1;
    });

    Holders free (std::make_move_iterator (firstFree), std::make_move_iterator (holders.end()));
    holders.erase (firstFree, holders.end());
    return free;
}
} // namespace Zn::Events
