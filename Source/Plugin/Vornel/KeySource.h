#pragma once

#include "Midi/NoteGate.h"
#include "Sequencer/MidiPlayer/Player.h"

namespace Zn::Audio::Plugins::Vornel
{
/** Where the chord comes from that the pattern plays: the held keys or, while the clock moves, the MIDI player in
    their place. Whichever gives way ends what it has begun, so that no note hangs. Thread: audio.
*/
class KeySource
{
public:
    explicit KeySource (Sequencer::MidiPlayer::Controller& midiPlayer) : player (midiPlayer) {}

    /** Reserves for blocks of this size. Thread: prepare. */
    void prepare (int blockSize);

    /** Keeps the keys and the pedal in the buffer, or puts the file's notes in place of them. */
    void process (juce::MidiBuffer& events, const Sequencer::ClockSlice& clock, bool playsFile) noexcept;

    /** Has the file's chord begin again after the next end of all notes. Thread: prepare. */
    void forgetFile() noexcept { player.forget(); }

private:
    void takeFile (juce::MidiBuffer& events, const Sequencer::ClockSlice& clock) noexcept;
    void takeKeys (juce::MidiBuffer& events, const Sequencer::ClockSlice& clock) noexcept;

    Sequencer::MidiPlayer::Player player;
    Midi::NoteGate liveGate, playerGate;
    juce::MidiBuffer fileNotes;
};
} // namespace Zn::Audio::Plugins::Vornel
