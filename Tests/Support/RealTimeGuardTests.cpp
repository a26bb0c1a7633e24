#include "Support/RealTimeGuard.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <juce_core/juce_core.h>

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <latch>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <thread>
#include <vector>

namespace Zn::Tests
{
namespace
{
/** Where results go, so that the compiler cannot leave out what makes them. */
const void* volatile sink = nullptr;

struct Counts
{
    int heap, locks;
};

template <typename Work>
Counts countDuring (Work&& work)
{
    const RealTimeGuard guard;
    work();
    return { guard.heapCalls(), guard.lockCalls() };
}

void allocateOnce()
{
    sink = std::make_unique<int> (1).get();
}

void mallocAndFree()
{
    auto* const block = std::malloc (10);
    sink = block;
    std::free (block);
}
} // namespace

TEST (RealTimeGuard, CountsNothingForArithmeticAtomicsAndMemoryThatIsThere)
{
    std::vector<double> values (1000, 0.1);
    std::vector<double> reserved;
    reserved.reserve (10);
    std::atomic<double> sum { 0.0 };
    juce::SpinLock spin;
    std::mutex mutex;

    const auto counts = countDuring ([&] {
        for (auto& value : values)
            sum = sum + std::sin (value);

        reserved.push_back (sum);
        std::free (nullptr);

        const juce::SpinLock::ScopedLockType lock (spin);

        if (mutex.try_lock())
            mutex.unlock();
    });

    EXPECT_EQ (counts.heap, 0);
    EXPECT_EQ (counts.locks, 0);
}

TEST (RealTimeGuard, CountsEveryWayToTheHeap)
{
    struct Row
    {
        const char* what;
        std::function<void()> work;
        int atLeast;
    };

    struct alignas (64) Line
    {
        char bytes[64];
    };

    std::vector<int> full (16);
    full.shrink_to_fit();
    auto owned = std::make_unique<int> (1);

    const std::tuple<const char*, std::function<void()>, int> rows[] {
        { "vector growth", [&] { full.push_back (1); }, 2 },
        { "String", [] { sink = juce::String ("a text of some length").toRawUTF8(); }, 2 },
        { "new and delete", allocateOnce, 2 },
        { "delete alone", [&] { owned.reset(); }, 1 },
        { "aligned new", [] { sink = std::make_unique<Line>().get(); }, 2 },
        { "malloc", mallocAndFree, 2 },
    };

    for (const auto& [what, work, atLeast] : rows)
        EXPECT_GE (countDuring (work).heap, atLeast) << what;
}

TEST (RealTimeGuard, CountsLocksThatCouldWait)
{
    if (! RealTimeGuard::countsLocks())
        GTEST_SKIP() << "the sanitizer owns the locks";

    std::mutex mutex;
    std::shared_mutex shared;
    juce::CriticalSection section;

    EXPECT_EQ (countDuring ([&] { const std::scoped_lock lock (mutex); }).locks, 1);
    EXPECT_EQ (countDuring ([&] { const std::shared_lock lock (shared); }).locks, 1);
    EXPECT_EQ (countDuring ([&] { const std::unique_lock lock (shared); }).locks, 1);
    EXPECT_EQ (countDuring ([&] { const juce::ScopedLock lock (section); }).locks, 1);
    EXPECT_GE (countDuring ([&] { juce::WaitableEvent().wait (1); }).locks, 2) << "the lock and the wait";
}

TEST (RealTimeGuard, WatchesItsOwnThreadWhileItLives)
{
    std::latch start { 1 }, done { 1 };
    std::jthread other ([&] {
        start.wait();

        for (auto i = 0; i < 100; ++i)
            allocateOnce();

        done.count_down();
    });

    const auto counts = countDuring ([&] {
        start.count_down();
        done.wait();
    });

    EXPECT_EQ (counts.heap, 0);

    const RealTimeGuard outer;
    EXPECT_EQ (countDuring (allocateOnce).heap, 2);
    allocateOnce();
    EXPECT_EQ (outer.heapCalls(), 4) << "what an inner guard has seen counts for the outer one too";
}

TEST (ExpectRealTimeSafe, FailsTheTestForMoreThanIsPermitted)
{
    const auto watched = [] (int permitted) {
        const ExpectRealTimeSafe scope ("the mixer", permitted);
        allocateOnce();
    };

    watched (2);
    EXPECT_NONFATAL_FAILURE (watched (1), "the mixer: 2 heap calls");
    EXPECT_NONFATAL_FAILURE (watched (0), "the first at\n");
}
} // namespace Zn::Tests
