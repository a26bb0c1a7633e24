#pragma once

#include "Foundation/CallbackFunc.h"

#include <chrono>

namespace Zn::Threads
{
/** How long a host's thread waits for the message thread, which may itself be waiting for that very thread. */
inline constexpr std::chrono::milliseconds longestWait { 1000 };

/** Whether the caller may do the message thread's work: it is the message thread or holds its lock, or there is
    none.
*/
bool isOnMessageThread() noexcept;

/** Runs a function on the message thread and waits for its end, the caller standing in where isOnMessageThread()
    says so. Gives up when it has not begun in time: it is then never called, and the answer is false. What it
    throws arrives here. Thread: any.
*/
bool callOnMessageThreadAndBlock (CallbackFunc callback, std::chrono::milliseconds timeout = longestWait);
} // namespace Zn::Threads
