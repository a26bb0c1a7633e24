#pragma once

#include "Midi/Messages.h"

#include <atomic>
#include <span>

namespace Zn::Midi
{
/** Carries messages from the editor's keyboard into the next block: room for every key to go down and up.

    The two sides share a spin flag that each holds for a copy only. The editor waits for it; the audio thread
    gives up soon, and the messages then come with a later block.
*/
class Inbox
{
public:
    static constexpr int capacity = 256;

    /** False if the message does not have three bytes or the inbox is full. Thread: message. */
    bool push (std::span<const std::uint8_t> message) noexcept;
    bool push (const juce::MidiMessage& message) noexcept;

    /** Throws away what has not been fetched yet. Thread: message. */
    void clear() noexcept;

    /** Moves all messages to sample 0 of a block, behind what stands there. Thread: audio. */
    void drainInto (juce::MidiBuffer& midi) noexcept;

private:
    void lock() noexcept;
    bool tryLock() noexcept { return ! locked.exchange (true); }
    bool tryLock (int maxTries) noexcept;
    void unlock() noexcept { locked.store (false); }

    std::atomic<bool> locked { false }; // taken: both
    std::array<ShortMessage, capacity> messages;
    int count = 0; // of messages
};
} // namespace Zn::Midi
