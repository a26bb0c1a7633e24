#pragma once

#include "Foundation/CallbackFunc.h"

#include <juce_core/juce_core.h>

namespace Zn::Threads
{
/** One background job, and on whose behalf it runs. What it throws ends there. Thread: pool. */
class PoolJobTask : public juce::ThreadPoolJob
{
public:
    PoolJobTask (const void* ownerToServe, CallbackFunc callbackToUse);

    const void* getOwner() const noexcept { return owner; }

    JobStatus runJob() override;

private:
    const void* const owner;
    const CallbackFunc callback;
};
} // namespace Zn::Threads
