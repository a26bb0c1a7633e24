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
    says so. False when that takes too long: a call that has not begun by then never does, one that has goes on
    alone, so it touches nothing that its caller takes away (results go into shared memory, see also
    Lifeline::guard). What it throws arrives here. Thread: any.

    As long as the message thread has not come back since a call was given up, others are given up sooner: a host that
    saves sixty plug-ins while it blocks that thread shall not stand still for a minute.
*/
bool callOnMessageThreadAndBlock (CallbackFunc callback, std::chrono::milliseconds timeout = longestWait);
} // namespace Zn::Threads
