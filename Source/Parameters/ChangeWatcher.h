#pragma once

#include "Foundation/CallbackFunc.h"
#include "Foundation/Events/TimerCallback.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <atomic>
#include <vector>

namespace Zn::Parameters
{
/** Calls a function on the message thread after any of some parameters has changed.

    A change only sets a flag, which the shared timer finds: it may come from automation on the audio thread, and JUCE
    holds a lock meanwhile that automation would wait for. Made and destroyed on any thread, as processors are: its
    end waits for an answer that is under way. The parameters outlive it.
*/
class ChangeWatcher : private juce::AudioProcessorParameter::Listener
{
public:
    ChangeWatcher (std::vector<juce::AudioProcessorParameter*> parametersToWatch, CallbackFunc callbackToUse);
    ~ChangeWatcher() override;

    ChangeWatcher (const ChangeWatcher&) = delete;
    ChangeWatcher& operator= (const ChangeWatcher&) = delete;

    /** Calls the function now if a change waits for it, for whoever cannot wait for the timer. Thread: message. */
    void answer();

    /** Leaves the changes so far unanswered. */
    void forget() noexcept { changed.store (false); }

private:
    void parameterValueChanged (int, float) override { changed.store (true); }
    void parameterGestureChanged (int, bool) override {}

    const std::vector<juce::AudioProcessorParameter*> parameters;
    const CallbackFunc callback;
    std::atomic<bool> changed { false }; // set: any thread, cleared: message
    const Events::TimerCallback timer;
};
} // namespace Zn::Parameters
