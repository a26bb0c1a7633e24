#include "Midi/MidiProcessor.h"

namespace Zn::Midi
{
MidiProcessorBase::MidiProcessorBase()
{
    prepare();
}

void MidiProcessorBase::prepare()
{
    output.ensureSize (reservedBufferBytes);
}

void MidiProcessorBase::emit (const juce::MidiMessage& message, int sample) noexcept
{
    writer.add (std::span (message.getRawData(), static_cast<std::size_t> (message.getRawDataSize())),
                sample);
}

void MidiProcessor::process (juce::MidiBuffer& buffer) noexcept
{
    writer.clear();

    for (const auto event : buffer)
        processEvent (event.getMessage(), event.samplePosition);

    output.swapWith (buffer);
}
} // namespace Zn::Midi
