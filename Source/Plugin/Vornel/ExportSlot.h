#pragma once

#include "Midi/RowToPitchTable.h"
#include "Sequencer/PatternData.h"

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Audio::Plugins::Vornel
{
constexpr int exportTicksPerQuarter = 960;

/** One pass of a slot as a MIDI file: what its rows play with a chord, every step whatever its chance, at its plain
    velocity. Tempo and a time signature of 4/4 are in it; it lasts as long as the slot. Thread: any.
*/
juce::MidiFile
exportSlot (const Sequencer::RenderedSlot& slot, const Midi::RowToPitchTable& chord, double beatsPerMinute);

class State;

/** The same of a slot of the plug-in with the chord that is held, else with the last one, else with C major, at the
    tempo that holds. Without tracks if there is nothing in the slot. Thread: message.
*/
juce::MidiFile exportSlot (State& state, int slot);
} // namespace Zn::Audio::Plugins::Vornel
