#pragma once

#include "Foundation/CallbackFunc.h"

#include <memory>

namespace Zn::Threads
{
/** Held by value by an object whose callbacks run later: once this is destroyed none begins any more, and its end
    waits for one that is under way on another thread. The object declares it last, or cuts it first thing in its
    destructor. Thread: any.
*/
class Lifeline
{
public:
    Lifeline();
    ~Lifeline();

    Lifeline (const Lifeline&) = delete;
    Lifeline& operator= (const Lifeline&) = delete;

    /** Ends it early. */
    void cut() noexcept;

    /** The callback, as a function that does nothing once the owner has gone. May be copied and kept by anyone. */
    CallbackFunc guard (CallbackFunc callback) const;

private:
    struct Gate;

    const std::shared_ptr<Gate> gate;
};

/** A function that has the callback run on the message thread, soon, once for each call, unless its owner has gone
    by then. May be called, copied and kept on any thread but audio, also after the owner is gone. What the
    callback throws ends there.
*/
CallbackFunc getAsyncCallback (const Lifeline& owner, CallbackFunc callback);
} // namespace Zn::Threads
