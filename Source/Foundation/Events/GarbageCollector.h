#pragma once

#include "Foundation/Events/RefCountBase.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

namespace Zn::Events
{
/** Frees shared objects on its own thread once nobody else holds them. A singleton; the last to be deleted,
    after a final pass over what the others have let go.
*/
class GarbageCollector
{
public:
    static constexpr bool releasedAfterAllOthers = true; // see Singleton

    static GarbageCollector& getInstance();

    GarbageCollector();
    ~GarbageCollector();

    GarbageCollector (const GarbageCollector&) = delete;
    GarbageCollector& operator= (const GarbageCollector&) = delete;

    /** Thread: any but audio. */
    void add (std::unique_ptr<RefCountBase> holder);

    /** Frees, on the calling thread, all that nobody holds, and what becomes free by that. Returns
        after a pass that another thread is in. Not to be called by a destructor of what is
        collected. Thread: any but audio.
    */
    void collectNow();

private:
    using Holders = std::vector<std::unique_ptr<RefCountBase>>;

    void run (std::stop_token stop);
    Holders takeFree();

    std::mutex passLock; // held for a whole pass

    std::mutex holdersLock; // never held while an object is freed: its destructor may add others
    Holders holders;
    std::condition_variable_any wake;

    std::jthread thread; // last member: it uses all others
};
} // namespace Zn::Events
