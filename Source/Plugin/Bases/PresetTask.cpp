#include "Plugin/Bases/PresetTask.h"

#include "Foundation/Singleton.h"
#include "Foundation/Threads/MessageThread.h"

#include <algorithm>
#include <utility>

namespace Zn::Audio::Plugin
{
PresetTask& PresetTask::getInstance()
{
    return Singleton::get<PresetTask>();
}

PresetTask::PresetTask()
    : runSoon (Threads::getAsyncCallback (lifeline, [this] { runAll(); })), timer ([this] { runAll(); })
{}

void PresetTask::add (Owner owner, CallbackFunc job)
{
    {
        const std::scoped_lock guard (lock);
        jobs.push_back ({ owner, std::move (job) });
    }

    if (! Threads::isOnMessageThread()) // who will flush now, or come by with the next tick
        runSoon();
}

void PresetTask::flush (Owner owner)
{
    std::unique_lock guard (lock);

    while (! isRunningHere (owner))
    {
        waitUntilIdle (owner, guard);
        const auto job = std::ranges::find (jobs, owner, &Job::owner);

        if (job == jobs.end())
            return;

        run (job, guard);
    }
}

void PresetTask::remove (Owner owner)
{
    Jobs removed; // destroyed behind the lock

    std::unique_lock guard (lock);
    const auto kept = std::stable_partition (jobs.begin(), jobs.end(), [owner] (const Job& job) {
        return job.owner != owner;
    });

    std::move (kept, jobs.end(), std::back_inserter (removed));
    jobs.erase (kept, jobs.end());

    if (! isRunningHere (owner))
        waitUntilIdle (owner, guard);

    guard.unlock();
}

void PresetTask::runAll()
{
    std::unique_lock guard (lock);

    const auto next = [this] {
        return std::ranges::find_if (jobs, [this] (const Job& job) { return ! isRunning (job.owner); });
    };

    for (auto job = next(); job != jobs.end(); job = next())
        run (job, guard);
}

void PresetTask::run (Jobs::iterator job, std::unique_lock<std::mutex>& guard)
{
    const auto owner = job->owner;
    auto function = std::move (job->function);
    jobs.erase (job);
    running.push_back ({ owner, std::this_thread::get_id() });
    guard.unlock();

    try
    {
        function();
    }
    catch (...) // nobody waits for its outcome
    {}

    function = nullptr; // what it holds goes before its owner may
    guard.lock();
    std::erase_if (running, [owner] (const Running& entry) { return entry.owner == owner; });
    ended.notify_all();
}

void PresetTask::waitUntilIdle (Owner owner, std::unique_lock<std::mutex>& guard)
{
    ended.wait (guard, [&] { return ! isRunning (owner); });
}

bool PresetTask::isRunning (Owner owner) const
{
    return std::ranges::find (running, owner, &Running::owner) != running.end();
}

bool PresetTask::isRunningHere (Owner owner) const
{
    const auto entry = std::ranges::find (running, owner, &Running::owner);
    return entry != running.end() && entry->thread == std::this_thread::get_id();
}
} // namespace Zn::Audio::Plugin
