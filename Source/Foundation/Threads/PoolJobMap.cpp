#include "Foundation/Threads/PoolJobMap.h"

#include "Foundation/Singleton.h"
#include "Foundation/Threads/PoolJobTask.h"

#include <memory>
#include <utility>

namespace Zn::Threads
{
namespace
{
/** Every job in the pool is a PoolJobTask, as nobody else can reach it. */
struct OthersOfOwner : juce::ThreadPool::JobSelector
{
    explicit OthersOfOwner (const void* ownerToLeave) : owner (ownerToLeave) {}

    bool isJobSuitable (juce::ThreadPoolJob* job) override
    {
        return static_cast<const PoolJobTask*> (job)->getOwner() == owner
               && job != juce::ThreadPoolJob::getCurrentThreadPoolJob();
    }

    const void* const owner;
};
} // namespace

PoolJobMap& PoolJobMap::getInstance()
{
    return Singleton::get<PoolJobMap>();
}

void PoolJobMap::add (const void* owner, CallbackFunc callback)
{
    constexpr auto deleteWhenFinished = true;
    pool.addJob (std::make_unique<PoolJobTask> (owner, std::move (callback)).release(), deleteWhenFinished);
}

void PoolJobMap::remove (const void* owner)
{
    constexpr auto withoutLimit = -1;
    OthersOfOwner jobs (owner);
    pool.removeAllJobs (true, withoutLimit, &jobs);
}
} // namespace Zn::Threads
