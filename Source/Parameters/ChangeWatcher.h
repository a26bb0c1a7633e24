#pragma once

#include "Foundation/CallbackFunc.h"
#include "Foundation/Events/TimerCallback.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <atomic>
#include <vector>

namespace Zn::Parameters
{
/** Calls a function on the message thread after any of some parameters has changed.

    A change made on the message thread is answered at once; one made elsewhere, by automation on the audio thread
    say, only sets a flag that the shared timer finds. Made and destroyed on any thread, as processors are: its end
    waits for an answer that is under way. The parameters outlive it.
*/
class ChangeWatcher : private juce::AudioProcessorParameter::Listener
{
public:
    ChangeWatcher (std::vector<juce::AudioProcessorParameter*> parametersToWatch, CallbackFunc callbackToUse);
    ~ChangeWatcher() override;

    ChangeWatcher (const ChangeWatcher&) = delete;
    ChangeWatcher& operator= (const ChangeWatcher&) = delete;

private:
    void parameterValueChanged (int, float) override;
    void parameterGestureChanged (int, bool) override {}

    void answer();

    const std::vector<juce::AudioProcessorParameter*> parameters;
    const CallbackFunc callback;
    std::atomic<bool> changed { false }; // set: any thread, cleared: message
    const Events::TimerCallback timer;
};
} // namespace Zn::Parameters
