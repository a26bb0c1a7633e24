#include "Foundation/Threads/PoolJobMap.h"

#include "Foundation/Singleton.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <latch>
#include <stdexcept>
#include <thread>

namespace Zn::Threads
{
TEST (PoolJobMap, ForgetsAnOwnersJobsAndWaitsForTheRunningOne)
{
    const Singleton::UserToken user;
    auto& pool = PoolJobMap::getInstance();
    const auto leaving = 0, staying = 0;

    std::latch begun { 2 };
    std::atomic<int> ended { 0 }, dropped { 0 };
    std::atomic<bool> stayed { false };

    for (auto i = 0; i < PoolJobMap::numThreads; ++i)
        pool.add (&leaving, [&] {
            begun.count_down();
            std::this_thread::sleep_for (std::chrono::milliseconds (30));
            ++ended;
            throw std::runtime_error ("heard by nobody");
        });

    begun.wait();
    pool.add (&leaving, [&] { ++dropped; });
    pool.add (&staying, [&] { stayed = true; });

    pool.remove (&leaving);
    EXPECT_EQ (ended, PoolJobMap::numThreads);

    while (! stayed)
        std::this_thread::yield();

    EXPECT_EQ (dropped, 0);
    pool.remove (&staying);
}

TEST (PoolJobMap, LetsAJobRemoveItsOwner)
{
    const Singleton::UserToken user;
    auto& pool = PoolJobMap::getInstance();
    const auto owner = 0;
    std::latch removed { 1 };

    pool.add (&owner, [&] {
        pool.remove (&owner);
        removed.count_down();
    });

    removed.wait();
    pool.remove (&owner);
}
} // namespace Zn::Threads
