#include "Foundation/Threads/MessageThread.h"

#include "Foundation/Threads/AsyncCallback.h"

#include "Support/MessageLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

namespace Zn::Threads
{
namespace
{
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/** Runs a function on a thread of its own while this one serves messages, and waits for it. */
void onWorker (const std::function<void()>& work)
{
    std::atomic<bool> ended { false };
    std::jthread worker ([&] {
        work();
        ended = true;
    });

    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return ended.load(); }));
}
} // namespace

TEST (CallOnMessageThreadAndBlock, RunsThereAndReturnsBehindItsEnd)
{
    onWorker ([] {
        auto ranThere = false;
        EXPECT_TRUE (callOnMessageThreadAndBlock ([&] {
            std::this_thread::sleep_for (20ms);
            ranThere = juce::MessageManager::existsAndIsCurrentThread();
        }));
        EXPECT_TRUE (ranThere);

        EXPECT_THROW (callOnMessageThreadAndBlock ([] { throw std::runtime_error ("for the caller"); }),
                      std::runtime_error);
    });
}

TEST (CallOnMessageThreadAndBlock, StandsInForTheMessageThreadWhereThatIsSafe)
{
    const auto ranHere = [] {
        std::thread::id ranOn;
        return callOnMessageThreadAndBlock ([&] { ranOn = std::this_thread::get_id(); })
               && ranOn == std::this_thread::get_id();
    };

    EXPECT_TRUE (ranHere()) << "on the message thread itself";

    onWorker ([&] {
        const juce::MessageManagerLock lock;
        EXPECT_TRUE (ranHere()) << "with its lock held";
    });
}

TEST (CallOnMessageThreadAndBlock, GivesUpOnAMessageThreadThatWaitsForIt)
{
    auto numCalled = 0;
    const auto callFromWorker = [&] {
        std::thread ([&] { EXPECT_FALSE (callOnMessageThreadAndBlock ([&] { ++numCalled; })); }).join();
    };

    const auto start = Clock::now();
    callFromWorker();
    EXPECT_LT (Clock::now() - start, 1500ms);

    for (auto plugIn = 0; plugIn < 8; ++plugIn)
        callFromWorker();

    EXPECT_LT (Clock::now() - start, 3s) << "it is known by now to be stuck";

    Zn::Tests::runPendingMessages();
    EXPECT_EQ (numCalled, 0) << "the callers had gone";

    const auto again = Clock::now();
    callFromWorker();
    EXPECT_GT (Clock::now() - again, 900ms) << "it has come back meanwhile";
    Zn::Tests::runPendingMessages();
}

TEST (CallOnMessageThreadAndBlock, GivesUpOnACallThatWaitsForItsCaller)
{
    std::mutex heldByCaller;
    std::atomic<bool> hasLeft { false };

    std::jthread worker ([&] {
        const std::scoped_lock lock (heldByCaller);
        EXPECT_FALSE (
            callOnMessageThreadAndBlock ([&] { const std::scoped_lock waits (heldByCaller); }, 50ms));
        hasLeft = true;
    });

    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return hasLeft.load(); }));
}

TEST (GetAsyncCallback, CallsOnTheMessageThreadForAsLongAsItsOwnerLives)
{
    std::optional<Lifeline> owner { std::in_place };
    auto calls = 0;
    const auto post = getAsyncCallback (*owner, [&] {
        EXPECT_TRUE (juce::MessageManager::existsAndIsCurrentThread());
        ++calls;
    });

    onWorker ([&] {
        post();
        post();
    });
    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return calls == 2; }));

    post();
    owner.reset();
    post();
    Zn::Tests::runPendingMessages();
    EXPECT_EQ (calls, 2);
}

TEST (GetAsyncCallback, IsWaitedForByAnOwnerThatGoesOnAnotherThread)
{
    std::optional<Lifeline> owner { std::in_place };
    std::atomic<bool> isRunning { false }, hasEnded { false };

    getAsyncCallback (*owner, [&] {
        isRunning = true;
        std::this_thread::sleep_for (50ms);
        hasEnded = true;
    })();

    std::jthread destroyer ([&] {
        while (! isRunning)
            std::this_thread::yield();

        owner.reset();
        EXPECT_TRUE (hasEnded);
    });

    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return hasEnded.load(); }));
}

TEST (GetAsyncCallback, MayEndItsOwnOwner)
{
    std::optional<Lifeline> owner { std::in_place };
    getAsyncCallback (*owner, [&] { owner.reset(); })();
    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return ! owner.has_value(); }));
}
} // namespace Zn::Threads
