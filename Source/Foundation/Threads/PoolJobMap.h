#pragma once

#include "Foundation/CallbackFunc.h"

#include <juce_core/juce_core.h>

namespace Zn::Threads
{
/** Work in the background for all plug-in instances together, each job on behalf of an owner.

    An owner removes its jobs before it goes, and keeps a Singleton::UserToken until then. Thread: any but audio.
*/
class PoolJobMap
{
public:
    static PoolJobMap& getInstance();

    /** Runs a function on one of the pool's threads, after what was added before. */
    void add (const void* owner, CallbackFunc callback);

    /** Drops the jobs of an owner that have not begun and waits for those that have, except one that calls this
        itself.
    */
    void remove (const void* owner);

    static constexpr int numThreads = 2;

private:
    juce::ThreadPool pool { numThreads };
};
} // namespace Zn::Threads
