#pragma once

#include <array>
#include <string>

namespace Zn::Tests
{
/** Counts what the audio thread must not do: while it lives, every heap call and every lock that could wait,
    made by the thread that created it.

    Heap calls are malloc and its relatives, free, and with them operator new and delete; locks are
    pthread_mutex_lock, the rwlocks and condition waits, and with them std::mutex and juce::CriticalSection.
    Guards nest; each counts for itself. Under a sanitizer, which owns these functions, heap calls are counted
    through its hooks and locks are not counted.
*/
class RealTimeGuard
{
public:
    RealTimeGuard();
    ~RealTimeGuard();

    RealTimeGuard (const RealTimeGuard&) = delete;
    RealTimeGuard& operator= (const RealTimeGuard&) = delete;

    /** False in a build where locks cannot be seen: lockCalls() is 0 there. */
    static bool countsLocks() noexcept;

    int heapCalls() const noexcept { return numHeapCalls; }
    int lockCalls() const noexcept { return numLockCalls; }

    /** Counts, and where the first offence came from: addresses for addr2line where no names are known. */
    std::string describe() const;

    enum class Offence
    {
        heap,
        lock
    };

    /** Called by the watched functions. */
    static void report (Offence offence) noexcept;

private:
    void count (Offence offence) noexcept;

    static constexpr std::size_t deepestTrace = 24; // stack frames

    int numHeapCalls = 0, numLockCalls = 0;
    std::array<void*, deepestTrace> firstOffence {};
    int firstOffenceDepth = 0;
    RealTimeGuard* const outer;
};

/** Fails the running test if the thread does anything in this scope that an audio thread must not do. */
class ExpectRealTimeSafe
{
public:
    explicit ExpectRealTimeSafe (std::string whatIsWatched = {}, int permittedHeapCalls = 0);
    ~ExpectRealTimeSafe();

    ExpectRealTimeSafe (const ExpectRealTimeSafe&) = delete;
    ExpectRealTimeSafe& operator= (const ExpectRealTimeSafe&) = delete;

private:
    const std::string what;
    const int permitted;
    RealTimeGuard guard; // last: what comes before it is not watched
};
} // namespace Zn::Tests
