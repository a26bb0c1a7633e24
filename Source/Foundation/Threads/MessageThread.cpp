#include "Foundation/Threads/MessageThread.h"

#include <juce_events/juce_events.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <utility>

namespace Zn::Threads
{
namespace
{
/** Calls that were given up while the message thread has not come to them: it is as stuck as it was. */
std::atomic<int> numAbandoned { 0 };

/** Enough for a message thread that is merely busy. */
constexpr std::chrono::milliseconds waitWhileStuck { 50 };

/** A call that two threads share: one waits for it, the other makes it, and either may come first or be gone. */
class SharedCall
{
public:
    explicit SharedCall (CallbackFunc callbackToUse) : callback (std::move (callbackToUse)) {}

    /** With the queue's reference and the caller's gone. */
    ~SharedCall()
    {
        if (stage == Stage::abandoned)
            --numAbandoned;
    }

    SharedCall (const SharedCall&) = delete;
    SharedCall& operator= (const SharedCall&) = delete;

    /** Makes the call, unless nobody waits for it any more. Thread: message. */
    void make() noexcept
    {
        if (! proceed (Stage::queued, Stage::running))
            return;

        try
        {
            callback();
        }
        catch (...)
        {
            failure = std::current_exception();
        }

        proceed (Stage::running, Stage::ended);
    }

    /** Whether the call was made and has ended. Thread: the one that waits. */
    bool waitForEnd (std::chrono::milliseconds timeout)
    {
        std::unique_lock guard (lock);

        if (! changed.wait_for (guard, timeout, [this] { return stage == Stage::ended; }))
        {
            stage = Stage::abandoned;
            ++numAbandoned;
            return false;
        }

        if (failure)
            std::rethrow_exception (failure);

        return true;
    }

private:
    enum class Stage
    {
        queued,
        running,
        ended,
        abandoned
    };

    bool proceed (Stage from, Stage to)
    {
        const std::scoped_lock guard (lock);

        if (stage != from)
            return false;

        stage = to;
        changed.notify_all();
        return true;
    }

    const CallbackFunc callback;
    std::exception_ptr failure;
    std::mutex lock;
    std::condition_variable changed;
    Stage stage = Stage::queued;
};
} // namespace

bool isOnMessageThread() noexcept
{
    return juce::MessageManager::getInstanceWithoutCreating() == nullptr
           || juce::MessageManager::existsAndIsLockedByCurrentThread();
}

bool callOnMessageThreadAndBlock (CallbackFunc callback, std::chrono::milliseconds timeout)
{
    if (isOnMessageThread())
    {
        callback();
        return true;
    }

    if (numAbandoned.load() > 0)
        timeout = std::min (timeout, waitWhileStuck);

    const auto call = std::make_shared<SharedCall> (std::move (callback));
    return juce::MessageManager::callAsync ([call] { call->make(); }) && call->waitForEnd (timeout);
}
} // namespace Zn::Threads
