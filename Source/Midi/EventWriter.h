#pragma once

#include "Midi/Messages.h"

#include <span>

namespace Zn::Midi
{
/** Fills a buffer in time order at a constant cost per event.

    juce::MidiBuffer::addEvent walks the whole buffer to find an event's place, so that a stage copying n
    events takes n * n steps; this one goes straight to the end and falls back on addEvent only for an event
    that is earlier than the last. The outcome is the same: sorted by sample, in the order of adding within
    one sample. While a writer is in use nobody else may write to its buffer. Thread: audio.
*/
class EventWriter
{
public:
    /** Goes on behind what the buffer holds. */
    explicit EventWriter (juce::MidiBuffer& bufferToFill) noexcept;

    EventWriter (const EventWriter&) = delete;
    EventWriter& operator= (const EventWriter&) = delete;

    /** Empties the buffer; its memory stays. */
    void clear() noexcept;

    void add (const ShortMessage& message, int sample) noexcept;
    void add (const Event& event) noexcept;
    void add (const Event& event, int sample) noexcept;
    void add (std::span<const std::uint8_t> message, int sample) noexcept;

private:
    juce::MidiBuffer& buffer;
    int lastSample;
};
} // namespace Zn::Midi
