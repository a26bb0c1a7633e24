#pragma once

#include "Midi/EventWriter.h"

namespace Zn::Midi
{
/** A stage of the MIDI stream: turns a buffer into another and swaps the two. Thread: audio. */
class MidiProcessorBase
{
public:
    MidiProcessorBase();
    virtual ~MidiProcessorBase() = default;

    MidiProcessorBase (const MidiProcessorBase&) = delete;
    MidiProcessorBase& operator= (const MidiProcessorBase&) = delete;

    virtual void process (juce::MidiBuffer& buffer) noexcept = 0;
    virtual void processEvent (const juce::MidiMessage& message, int sample) noexcept = 0;

    /** Reserves memory again where swaps have handed it away. Thread: prepare. */
    void prepare();

protected:
    void emit (const juce::MidiMessage& message, int sample) noexcept;
    void emit (const ShortMessage& message, int sample) noexcept { writer.add (message, sample); }

    juce::MidiBuffer output;
    EventWriter writer { output };
};

/** A stage that decides event by event: processEvent emits what is to take an event's place. Messages of more
    than eight bytes would be copied on the heap, so the stream is filtered before it comes here.
*/
class MidiProcessor : public MidiProcessorBase
{
public:
    void process (juce::MidiBuffer& buffer) noexcept override;
};
} // namespace Zn::Midi
