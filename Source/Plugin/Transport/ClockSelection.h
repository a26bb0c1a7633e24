#pragma once

#include "Plugin/Transport/InternalPlayHead.h"
#include "Sequencer/PlayHead.h"

namespace Zn::Audio
{
enum class ClockSource
{
    internal,
    host
};

/** Moves the clock over the coming block, after the host's transport or after our own, and tells the editor.

    The host's clock is in force while it plays; with `keyMode` set also while it is stopped, so that keys
    then wait for it. In every other case, and whenever the user chose the internal clock, our own runs from
    where the last block ended, at the tempo that `shared` holds. A tempo from the host goes to `shared` in
    any case. Thread: audio.

    @returns the clock that was in force
*/
ClockSource updateClock (InternalPlayHead& clock,
                         Sequencer::PlayHead& shared,
                         juce::AudioPlayHead* host,
                         bool keyMode,
                         int numSamples) noexcept;
} // namespace Zn::Audio
