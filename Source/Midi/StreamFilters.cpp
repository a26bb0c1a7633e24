#include "Midi/StreamFilters.h"

#include "Midi/EventWriter.h"

namespace Zn::Midi
{
namespace
{
constexpr std::uint8_t kindMask = 0xF0;

bool isFirstByteOfMessage (std::uint8_t byte) noexcept
{
    return byte >= 0x80;
}
} // namespace

void appendThreeByteMessages (const juce::MidiBuffer& source,
                              juce::MidiBuffer& target,
                              int numSamples) noexcept
{
    jassert (numSamples > 0);
    EventWriter kept (target);

    for (const auto event : source)
        if (event.numBytes == 3 && isFirstByteOfMessage (event.data[0]))
            kept.add (event, std::clamp (event.samplePosition, 0, std::max (0, numSamples - 1)));
}

void flattenChannels (juce::MidiBuffer& scratch, juce::MidiBuffer& buffer) noexcept
{
    EventWriter flat (scratch);
    flat.clear();

    for (const auto event : buffer)
    {
        std::array<std::uint8_t, 3> message {};
        const auto size = static_cast<std::size_t> (event.numBytes);

        if (! hasChannel (event) || size > message.size())
        {
            flat.add (event);
            continue;
        }

        std::copy_n (event.data, size, message.begin());
        message[0] &= kindMask;
        flat.add (std::span (message).first (size), event.samplePosition);
    }

    scratch.swapWith (buffer);
}

void splitNotesAndPedal (juce::MidiBuffer& scratch,
                         juce::MidiBuffer& others,
                         juce::MidiBuffer& buffer) noexcept
{
    EventWriter notes (scratch), rest (others);
    notes.clear();
    rest.clear();

    for (const auto event : buffer)
        (isNote (event) || isController (event, sustainController) ? notes : rest).add (event);

    scratch.swapWith (buffer);
}

void mergeEvents (juce::MidiBuffer& scratch,
                  juce::MidiBuffer& buffer,
                  const juce::MidiBuffer& others) noexcept
{
    EventWriter merged (scratch);
    merged.clear();

    auto other = others.begin();

    for (const auto event : buffer)
    {
        for (; other != others.end() && (*other).samplePosition < event.samplePosition; ++other)
            merged.add (*other);

        merged.add (event);
    }

    for (; other != others.end(); ++other)
        merged.add (*other);

    scratch.swapWith (buffer);
}
} // namespace Zn::Midi
