#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <execinfo.h>
#include <memory>
#include <utility>

namespace Zn::Tests
{
namespace
{
/** The guard that counts on this thread; null while none does. Needs no construction, so that it can be read
    from the very first malloc of a thread on.
*/
constinit thread_local RealTimeGuard* innermost = nullptr;

/** The first backtrace of a process loads a library. */
void prepareBacktrace()
{
    static const auto prepared = [] {
        void* frame = nullptr;
        return ::backtrace (&frame, 1);
    }();

    (void)prepared;
}
} // namespace

RealTimeGuard::RealTimeGuard() : outer (std::exchange (innermost, nullptr))
{
    prepareBacktrace();
    innermost = this;
}

RealTimeGuard::~RealTimeGuard()
{
    innermost = outer;
}

std::string RealTimeGuard::describe() const
{
    auto* const watching = std::exchange (innermost, nullptr);
    auto text = std::to_string (numHeapCalls) + " heap calls, "
                + (countsLocks() ? std::to_string (numLockCalls) + " locks" : "locks not counted");

    if (firstOffenceDepth > 0)
    {
        const std::unique_ptr<char*, decltype (&std::free)> names (
            ::backtrace_symbols (firstOffence.data(), firstOffenceDepth),
            &std::free);

        text += ", the first at";

        for (auto i = 0; names != nullptr && i < firstOffenceDepth; ++i)
            text += std::string ("\n    ") + names.get()[i];
    }

    innermost = watching;
    return text;
}

void RealTimeGuard::report (Offence offence) noexcept
{
    auto* const watching = std::exchange (innermost, nullptr);

    for (auto* guard = watching; guard != nullptr; guard = guard->outer)
        guard->count (offence);

    innermost = watching;
}

void RealTimeGuard::count (Offence offence) noexcept
{
    if (numHeapCalls + numLockCalls == 0)
        firstOffenceDepth = ::backtrace (firstOffence.data(), static_cast<int> (deepestTrace));

    ++(offence == Offence::heap ? numHeapCalls : numLockCalls);
}

ExpectRealTimeSafe::ExpectRealTimeSafe (std::string whatIsWatched, int permittedHeapCalls)
    : what (std::move (whatIsWatched)), permitted (permittedHeapCalls)
{}

ExpectRealTimeSafe::~ExpectRealTimeSafe()
{
    if (guard.heapCalls() <= permitted && guard.lockCalls() == 0)
        return;

    const auto report = guard.describe();
    ADD_FAILURE() << what << (what.empty() ? "" : ": ") << report;
}
} // namespace Zn::Tests
