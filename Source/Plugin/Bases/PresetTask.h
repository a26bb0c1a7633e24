#pragma once

#include "Foundation/Events/TimerCallback.h"
#include "Foundation/Threads/AsyncCallback.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Zn::Audio::Plugin
{
/** What waits for the message thread on behalf of some owner: states that a host wants loaded while it calls on
    another thread.

    The jobs of an owner run in the order in which they came and never two at a time, with no lock held; what one
    throws ends there. They begin as soon as the message thread gets to them, at the latest with the next tick of
    the shared timer. An owner removes its jobs before it goes.
*/
class PresetTask
{
public:
    using Owner = const void*;

    static PresetTask& getInstance();

    PresetTask();

    /** Thread: any. */
    void add (Owner owner, CallbackFunc job);

    /** Runs the jobs of an owner now, behind one that is under way. Does nothing inside such a job. Thread: message,
        or whoever stands in for it.
    */
    void flush (Owner owner);

    /** Forgets the jobs of an owner and waits for one that is under way, unless this is called inside it.
        Thread: any.
    */
    void remove (Owner owner);

private:
    struct Job
    {
        Owner owner;
        CallbackFunc function;
    };

    struct Running
    {
        Owner owner;
        std::thread::id thread;
    };

    using Jobs = std::deque<Job>;

    void runAll();
    void run (Jobs::iterator job, std::unique_lock<std::mutex>& guard);
    void waitUntilIdle (Owner owner, std::unique_lock<std::mutex>& guard);
    bool isRunning (Owner owner) const;
    bool isRunningHere (Owner owner) const;

    std::mutex lock; // guards what follows, never held while a job runs
    std::condition_variable ended;
    Jobs jobs;
    std::vector<Running> running;

    Threads::Lifeline lifeline;
    const CallbackFunc runSoon;
    const Events::TimerCallback timer;
};
} // namespace Zn::Audio::Plugin
