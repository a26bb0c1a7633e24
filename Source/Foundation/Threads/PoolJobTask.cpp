#include "Foundation/Threads/PoolJobTask.h"

#include <utility>

namespace Zn::Threads
{
PoolJobTask::PoolJobTask (const void* ownerToServe, CallbackFunc callbackToUse)
    : ThreadPoolJob ("Vornel background job"), owner (ownerToServe), callback (std::move (callbackToUse))
{}

juce::ThreadPoolJob::JobStatus PoolJobTask::runJob()
{
    try
    {
        callback();
    }
    catch (...) // nobody waits for it
    {}

    return jobHasFinished;
}
} // namespace Zn::Threads
