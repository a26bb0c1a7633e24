#include "Plugin/Vornel/ExportSlot.h"

#include "Midi/RowExpander.h"
#include "Plugin/Vornel/State.h"
#include "Sequencer/SlotPlayer.h"

#include <cmath>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr double ticksPerQuarter = exportTicksPerQuarter;
constexpr double microsecondsPerMinute = 60.0e6;

/** One pass, in which every step sounds. */
Sequencer::RenderedSlot onePassOf (const Sequencer::RenderedSlot& slot)
{
    auto pass = slot;
    pass.looping = false;
    pass.playing = true;
    pass.events.sequences.clear();
    pass.events.marks.clear();

    for (auto& note : pass.events.notes)
    {
        note.event.chance = 1.0f;
        note.event.spreadLow = note.event.spreadHigh = 0.0f;
    }

    return pass;
}

/** The row messages of a pass on a clock of one sample for each tick, bar by bar; at its end all notes end. */
template <typename Function>
void play (const Sequencer::RenderedSlot& slot, int numTicks, Function&& takeRows)
{
    constexpr auto run = 4 * exportTicksPerQuarter;

    Sequencer::SlotPlayer player;
    player.prepare (run);
    std::vector<double> positions;
    juce::MidiBuffer rows;

    const auto playRun = [&] (const Sequencer::RenderedSlot& played, int start, int length) {
        positions.clear();

        for (auto tick = start; tick < start + length; ++tick)
            positions.push_back (tick / ticksPerQuarter);

        rows.clear();
        player.run ({ positions, true, start == 0, start == 0, 1.0 / ticksPerQuarter }, played, rows, start);
        takeRows (rows);
    };

    for (auto start = 0; start < numTicks; start += run)
        playRun (slot, start, std::min (run, numTicks - start));

    playRun (Sequencer::fallback, numTicks, 1);
}

void addNotes (juce::MidiMessageSequence& track,
               const Sequencer::RenderedSlot& slot,
               const Midi::RowToPitchTable& chord,
               int numTicks)
{
    Midi::RowExpander expander;
    juce::MidiBuffer pitches;

    play (onePassOf (slot), numTicks, [&] (const juce::MidiBuffer& rows) {
        pitches.clear();
        Midi::EventWriter writer (pitches);
        expander.process (rows, chord, writer);

        for (const auto event : pitches)
            track.addEvent (event.getMessage()); // its time is its sample, which is a tick
    });
}

int ticksOf (const Sequencer::RenderedSlot& slot)
{
    constexpr auto longest = 65536.0; // quarter notes
    const auto length = std::isfinite (slot.playLength) ? juce::jlimit (0.0, longest, slot.playLength) : 0.0;

    return juce::roundToInt (length * ticksPerQuarter);
}

Midi::RowToPitchTable chordOf (State& state)
{
    auto reader = state.lastChords.getReader();

    if (const auto& last = reader.newest(); ! last.getHeldNotes().isEmpty())
        return last;

    return Midi::RowToPitchTable::from ({ 60, 64, 67 }, state.octaveRange.limits()); // C major
}
} // namespace

juce::MidiFile
exportSlot (const Sequencer::RenderedSlot& slot, const Midi::RowToPitchTable& chord, double beatsPerMinute)
{
    const auto numTicks = ticksOf (slot);

    juce::MidiMessageSequence track;
    track.addEvent (
        juce::MidiMessage::tempoMetaEvent (juce::roundToInt (microsecondsPerMinute / beatsPerMinute)));
    track.addEvent (juce::MidiMessage::timeSignatureMetaEvent (4, 4));
    addNotes (track, slot, chord, numTicks);
    track.addEvent (juce::MidiMessage::endOfTrack(), numTicks);

    juce::MidiFile file;
    file.setTicksPerQuarterNote (exportTicksPerQuarter);
    file.addTrack (track);
    return file;
}

juce::MidiFile exportSlot (State& state, int slot)
{
    const auto& rendered = state.patterns.getPatternData()->slots[static_cast<std::size_t> (slot)];

    if (rendered.events.notes.empty())
        return {};

    return exportSlot (rendered, chordOf (state), double (state.bpm.getFloat()));
}
} // namespace Zn::Audio::Plugins::Vornel
