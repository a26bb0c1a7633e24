#pragma once

#include "Foundation/Events/TimerCallback.h"
#include "Plugin/Vornel/Params.h"

#include <array>
#include <atomic>

namespace Zn::Audio::Plugins::Vornel
{
/** Carries the global unison to all four oscillators: each has the parameters of its own, which only this sets.

    The audio thread sets the values; who listens to them is told by the message thread, since listeners lock and draw.
*/
class UnisonPush
{
public:
    /** The parameters outlive it. */
    explicit UnisonPush (SoundParams& paramsToUse);

    /** Sets what differs. Thread: audio. */
    void push() noexcept;

private:
    void tellListeners();

    SoundParams& params;
    std::array<std::atomic<bool>, WavetableSynth::numOscillators> changed {}; // set: audio, cleared: message
    const Events::TimerCallback timer;
};
} // namespace Zn::Audio::Plugins::Vornel
