#include "Midi/SustainPedal/Processor.h"

namespace Zn::Midi::SustainPedal
{
namespace
{
constexpr auto releaseVelocity = 25; // of notes that the pedal ends
} // namespace

Processor::Processor (std::atomic<bool>* pedalDownFlag) noexcept : pedalDown (pedalDownFlag) {}

void Processor::processEvent (const juce::MidiMessage& message, int sample) noexcept
{
    if (message.isControllerOfType (sustainController))
    {
        pedalMoved (message, sample);
    }
    else if (message.isNoteOff())
    {
        keyLifted (message, sample);
    }
    else
    {
        if (message.isNoteOn())
            down.add (message.getNoteNumber());

        emit (message, sample);
    }
}

void Processor::pedalMoved (const juce::MidiMessage& pedal, int sample) noexcept
{
    const auto isDown = pedal.getControllerValue() >= lowestValueOfPedalDown;
    pedalDown->exchange (isDown);

    if (isDown)
        return;

    for (const auto note : sustained)
        emit (ShortMessage::noteOff (pedal.getChannel(), note, releaseVelocity), sample);

    sustained.clear();
}

void Processor::keyLifted (const juce::MidiMessage& noteOff, int sample) noexcept
{
    down.remove (noteOff.getNoteNumber());

    if (pedalDown->load())
        sustained.add (noteOff.getNoteNumber());
    else
        emit (noteOff, sample);
}
} // namespace Zn::Midi::SustainPedal
