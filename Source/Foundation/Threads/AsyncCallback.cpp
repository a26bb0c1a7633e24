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

CallbackFunc getAsyncCallback (const Lifeline& owner, CallbackFunc callback)
{
    const auto shared = std::make_shared<const CallbackFunc> (std::move (callback));

    return [gate = owner.gate, shared] {
        juce::MessageManager::callAsync ([gate, shared] {
            const juce::ScopedLock scopedLock (gate->lock);

            if (! gate->open)
                return;

            try
            {
                (*shared)();
            }
            catch (...) // the host's message loop knows nothing of ours
            {}
        });
    };
}
} // namespace Zn::Threads
