#pragma once

#include "Midi/MidiProcessor.h"
#include "Midi/NoteList.h"

#include <atomic>

namespace Zn::Midi::SustainPedal
{
/** Holds back the note-offs of lifted keys while the sustain pedal is down, so that what follows sees them as
    held. Consumes the pedal's controller. Thread: audio.
*/
class Processor : public MidiProcessor
{
public:
    /** The flag tells others whether the pedal is down; it outlives the processor. */
    explicit Processor (std::atomic<bool>* pedalDownFlag) noexcept;

    void processEvent (const juce::MidiMessage& message, int sample) noexcept override;

private:
    void pedalMoved (const juce::MidiMessage& pedal, int sample) noexcept;
    void keyLifted (const juce::MidiMessage& noteOff, int sample) noexcept;

    std::atomic<bool>* const pedalDown; // written: audio, read: any
    NoteList down;                      // keys that are pressed
    NoteList sustained;                 // keys that were lifted while the pedal was down
};
} // namespace Zn::Midi::SustainPedal
