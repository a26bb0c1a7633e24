#include "Foundation/Events/GarbageCollector.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Foundation/Singleton.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace Zn::Events
{
namespace
{
using namespace std::chrono_literals;

/** Tells when and on which thread it was freed. */
struct Tombstone
{
    std::atomic<bool> freed { false };
    std::atomic<std::thread::id> freedOn {};
};

struct Mortal
{
    explicit Mortal (Tombstone& tombstoneToUse) : tombstone (tombstoneToUse) {}

    ~Mortal()
    {
        tombstone.freedOn = std::this_thread::get_id();
        tombstone.freed = true;
    }

    Mortal (const Mortal&) = delete;
    Mortal& operator= (const Mortal&) = delete;

    Tombstone& tombstone;
    std::shared_ptr<Mortal> next;
};

bool waitFor (const std::atomic<bool>& flag)
{
    for (auto waited = 0ms; ! flag && waited < 10s; waited += 5ms)
        std::this_thread::sleep_for (5ms);

    return flag;
}
} // namespace

TEST (GarbageCollector, FreesOnItsOwnThreadAndNotBeforeTheOwnerLetsGo)
{
    Tombstone tombstone;
    const Singleton::UserToken token;

    auto owner = RefCountedHolder<Mortal>::create (tombstone);
    auto guest = owner;
    GarbageCollector::getInstance().collectNow();
    owner.reset();
    GarbageCollector::getInstance().collectNow();
    EXPECT_FALSE (tombstone.freed);

    guest.reset();
    ASSERT_TRUE (waitFor (tombstone.freed));
    EXPECT_NE (tombstone.freedOn.load(), std::this_thread::get_id());
}

TEST (GarbageCollector, FreesWholeChainsInOneCollection)
{
    Tombstone first, second;
    const Singleton::UserToken token;

    {
        const auto last = RefCountedHolder<Mortal>::create (second);
        RefCountedHolder<Mortal>::create (first)->next = last;
    }

    GarbageCollector::getInstance().collectNow();
    EXPECT_TRUE (first.freed);
    EXPECT_TRUE (second.freed);
}

TEST (GarbageCollector, FreesWhatIsLeftWhenTheLastUserGoes)
{
    Tombstone tombstone;
    const auto start = std::chrono::steady_clock::now();

    {
        const Singleton::UserToken token;
        RefCountedHolder<Mortal>::create (tombstone);
    }

    EXPECT_TRUE (tombstone.freed);
    EXPECT_NE (tombstone.freedOn.load(), std::this_thread::get_id());
    EXPECT_LT (std::chrono::steady_clock::now() - start, 400ms) << "waited for its interval";
}

TEST (GarbageCollector, TakesNewObjectsWhileOthersAreLetGoOf)
{
    constexpr auto objectsPerThread = 500;
    std::vector<Tombstone> tombstones (2 * objectsPerThread);

    {
        const Singleton::UserToken token;
        std::vector<std::jthread> owners;

        for (auto thread = 0; thread < 2; ++thread)
            owners.emplace_back ([&tombstones, thread] {
                for (auto i = 0; i < objectsPerThread; ++i)
                {
                    const auto index = static_cast<std::size_t> (thread * objectsPerThread + i);
                    const auto object = RefCountedHolder<Mortal>::create (tombstones[index]);
                    EXPECT_FALSE (object->tombstone.freed);
                }
            });

        for (auto i = 0; i < 50; ++i)
            GarbageCollector::getInstance().collectNow();
    }

    for (const auto& tombstone : tombstones)
        EXPECT_TRUE (tombstone.freed);
}
} // namespace Zn::Events
