#include "Midi/EventWriter.h"

#include <cstring>

namespace Zn::Midi
{
namespace
{
constexpr std::size_t headerBytes = 6; // sample as int32, then the message's size as uint16
constexpr std::size_t maxShortBytes = 8;

/** Writes the record that juce::MidiBuffer keeps of an event. */
void append (juce::MidiBuffer& buffer, std::span<const std::uint8_t> message, int sample) noexcept
{
    std::array<std::uint8_t, headerBytes + maxShortBytes> record;
    const auto size = static_cast<std::uint16_t> (message.size());

    std::memcpy (record.data(), &sample, sizeof (std::int32_t));
    std::memcpy (record.data() + sizeof (std::int32_t), &size, sizeof (size));
    std::memcpy (record.data() + headerBytes, message.data(), size);
    buffer.data.addArray (record.data(), static_cast<int> (headerBytes + size));
}
} // namespace

EventWriter::EventWriter (juce::MidiBuffer& bufferToFill) noexcept
    : buffer (bufferToFill), lastSample (bufferToFill.getLastEventTime())
{}

void EventWriter::clear() noexcept
{
    buffer.clear();
    lastSample = 0;
}

void EventWriter::add (const ShortMessage& message, int sample) noexcept
{
    add (std::span (message.bytes), sample);
}

void EventWriter::add (const Event& event) noexcept
{
    add (event, event.samplePosition);
}

void EventWriter::add (const Event& event, int sample) noexcept
{
    add (std::span (event.data, static_cast<std::size_t> (event.numBytes)), sample);
}

void EventWriter::add (std::span<const std::uint8_t> message, int sample) noexcept
{
    const auto isLast = buffer.isEmpty() || sample >= lastSample;

    if (isLast && message.size() <= maxShortBytes)
        append (buffer, message, sample);
    else
        buffer.addEvent (message.data(), static_cast<int> (message.size()), sample);

    if (isLast)
        lastSample = sample;
}
} // namespace Zn::Midi
