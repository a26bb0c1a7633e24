#include "Foundation/Threads/AsyncCallback.h"

#include <juce_events/juce_events.h>

#include <utility>

namespace Zn::Threads
{
/** Shared with every callback, so that it outlives the owner. */
struct Lifeline::Gate
{
    juce::CriticalSection lock; // held during a callback, which may end its owner
    bool open = true;
};

Lifeline::Lifeline() : gate (std::make_shared<Gate>()) {}

Lifeline::~Lifeline()
{
    cut();
}

void Lifeline::cut() noexcept
{
    const juce::ScopedLock scopedLock (gate->lock);
    gate->open = false;
}

CallbackFunc Lifeline::guard (CallbackFunc callback) const
{
    return [sharedGate = gate, callback = std::move (callback)] {
        const juce::ScopedLock scopedLock (sharedGate->lock);

        if (sharedGate->open)
            callback();
    };
}

CallbackFunc getAsyncCallback (const Lifeline& owner, CallbackFunc callback)
{
    return [guarded = std::make_shared<const CallbackFunc> (owner.guard (std::move (callback)))] {
        juce::MessageManager::callAsync ([guarded] {
            try
            {
                (*guarded)();
            }
            catch (...) // the host's message loop knows nothing of ours
            {}
        });
    };
}
} // namespace Zn::Threads
