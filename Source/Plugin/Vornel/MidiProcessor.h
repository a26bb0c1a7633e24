#pragma once

#include "Midi/HeldNotes.h"
#include "Midi/Mapper/NoteLimitProcessor.h"
#include "Midi/Mapper/TransposeProcessor.h"
#include "Midi/PitchTableRing.h"
#include "Midi/RowExpander.h"
#include "Midi/SustainPedal/SimpleProcessor.h"
#include "Plugin/Vornel/KeySource.h"
#include "Plugin/Vornel/MidiSettings.h"
#include "Sequencer/PatternEngine.h"

namespace Zn::Audio::Plugins::Vornel
{
/** Turns held keys into the notes of the drawn pattern.

    Keys, or those of the MIDI player, pass the sustain pedal, the transposition and the note limit, then enter the held
    notes, from which the pitch table is made. Between two note events the pattern engine runs and its rows become pitches.
    Thread: audio.
*/
class MidiProcessor
{
public:
    /** Shows the pitch tables to the editor: the one that holds and, for when no key is held, that of the last chord. */
    MidiProcessor (Midi::PitchTableRing& pitchTablesToShow,
                   Midi::PitchTableRing& lastChordsToShow,
                   Sequencer::MidiPlayer::Controller& midiPlayer);

    /** Reserves for blocks of this size. Thread: prepare. */
    void prepare (int blockSize);

    /** Makes the chance of steps repeatable. Thread: prepare. */
    void setSeed (juce::int64 seed) noexcept { engine.setSeed (seed); }

    /** Runs one segment of a block. `events` brings notes and sustain pedal messages at samples of the segment and
        takes away what is heard. The clock covers the segment; sample times at its length are allowed.
    */
    void process (juce::MidiBuffer& events,
                  const Sequencer::ClockSlice& clock,
                  const Sequencer::PatternFrame& frame,
                  const MidiSettings& settings) noexcept;

    /** Has the chord of the MIDI player begin again after the next end of all notes. Thread: prepare. */
    void forgetFile() noexcept { keys.forgetFile(); }

    /** Adds the note-offs of all that is heard, at sample 0. Steps that last on stay silent until they come again. */
    void endHeardNotes (Midi::EventWriter& output) noexcept;

private:
    void shapeKeys (juce::MidiBuffer& events,
                    const Sequencer::ClockSlice& clock,
                    const MidiSettings& settings) noexcept;
    void playPattern (const juce::MidiBuffer& events,
                      const Sequencer::ClockSlice& clock,
                      const Sequencer::PatternFrame& frame,
                      const MidiSettings& settings) noexcept;
    int runEngine (BlockSlice run,
                   const Sequencer::ClockSlice& clock,
                   const Sequencer::PatternFrame& frame,
                   Midi::EventWriter& out) noexcept;
    void follow (const Midi::Event& note, const MidiSettings& settings) noexcept;

    KeySource keys;
    Midi::SustainPedal::SimpleProcessor sustainPedal;
    Midi::Mapper::TransposeProcessor transpose;
    Midi::Mapper::NoteLimitProcessor noteLimit;
    Midi::HeldNotes heldNotes;
    Midi::RowToPitchTable pitchTable;
    Midi::RowExpander rowExpander;
    Midi::NoteGate arpGate;
    Midi::PitchTableRing::Writer pitchTables, lastChords;

    Sequencer::PatternEngine engine;
    juce::MidiBuffer rows, generated;
};
} // namespace Zn::Audio::Plugins::Vornel
