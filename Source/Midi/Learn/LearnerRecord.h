#pragma once

#include "Midi/Messages.h"

#include <atomic>
#include <optional>

namespace Zn::Midi::Learn
{
/** Where the editor waits for the next message, and the audio thread leaves it.

    The message is written while the state is `armed`, read while it is `captured`, and only the audio thread
    leads from one to the other: so no two threads ever have it at once.
*/
class LearnerRecord
{
public:
    enum State : std::int32_t
    {
        idle = 0,
        armed = 1,
        captured = 2
    };

    /** Shows an event to the learner: it is captured if the learner waits for one. True while the learner is
        active, when no handler may act on events. They sound all the same. Thread: audio.
    */
    bool offer (const Event& event) noexcept;

    /** Waits for the next event, and forgets the one captured. Thread: message. */
    void arm() noexcept { state.store (armed); }

    /** Waits no longer, and forgets the one captured. Thread: message. */
    void stop() noexcept { state.store (idle); }

    State getState() const noexcept { return static_cast<State> (state.load()); }

    /** The message that was captured, until the next arm or stop. Thread: message. */
    std::optional<juce::MidiMessage> getCaptured() const;

    /** Differs from an earlier answer when a message has been captured since. Thread: any. */
    std::int32_t getChangeCount() const noexcept { return changeCount.load(); }

private:
    std::atomic<std::int32_t> state { idle };    // written: both, see above
    std::atomic<std::int32_t> changeCount { 0 }; // written: audio, read: GUI
    ShortMessage message;
};
} // namespace Zn::Midi::Learn
