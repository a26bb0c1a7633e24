#include "Plugin/Vornel/MidiProcessor.h"

namespace Zn::Audio::Plugins::Vornel
{
MidiProcessor::MidiProcessor (Midi::PitchTableRing& pitchTablesToShow,
                              Midi::PitchTableRing& lastChordsToShow,
                              Sequencer::MidiPlayer::Controller& midiPlayer)
    : keys (midiPlayer)
    , pitchTables (pitchTablesToShow.getWriter())
    , lastChords (lastChordsToShow.getWriter())
{}

void MidiProcessor::prepare (int blockSize)
{
    keys.prepare (blockSize);
    sustainPedal.prepare();
    transpose.prepare();
    noteLimit.prepare();
    arpGate.prepare();
    engine.prepare (blockSize);

    rows.ensureSize (Midi::reservedBufferBytes);
    generated.ensureSize (Midi::reservedBufferBytes);
}

void MidiProcessor::process (juce::MidiBuffer& events,
                             const Sequencer::ClockSlice& clock,
                             const Sequencer::PatternFrame& frame,
                             const MidiSettings& settings) noexcept
{
    shapeKeys (events, clock, settings);

    if (frame.liveSlots != nullptr)
        frame.liveSlots->quantum.store (settings.quantum);

    playPattern (events, clock, frame, settings);

    if (settings.arpActive)
        events.swapWith (generated);

    // Opening this gate flushes it too: keys that were heard directly would hang, as their note-offs are
    // replaced.
    arpGate.process (events, settings.arpActive, false);
}

void MidiProcessor::endHeardNotes (Midi::EventWriter& output) noexcept
{
    rowExpander.forget();
    arpGate.endAll (output, 0);
}

void MidiProcessor::shapeKeys (juce::MidiBuffer& events,
                               const Sequencer::ClockSlice& clock,
                               const MidiSettings& settings) noexcept
{
    keys.process (events, clock, settings.playsFile);
    sustainPedal.process (events);

    transpose.setSemitones (settings.transposeSemitones);
    transpose.process (events);

    noteLimit.setLimits (settings.limits);
    noteLimit.process (events);
}

void MidiProcessor::playPattern (const juce::MidiBuffer& events,
                                 const Sequencer::ClockSlice& clock,
                                 const Sequencer::PatternFrame& frame,
                                 const MidiSettings& settings) noexcept
{
    generated.clear();
    Midi::EventWriter out (generated);

    auto position = 0;
    auto anyNote = false, anyStart = false;

    for (const auto event : events)
    {
        if (! Midi::isNote (event))
        {
            out.add (event);
            continue;
        }

        // An event at the split that ends a segment stands at its length.
        const auto sample = std::min (event.samplePosition, clock.size());

        position += runEngine ({ position, sample - position }, clock, frame, out);
        follow (event, settings);
        anyNote = true;
        anyStart |= Midi::isNoteOn (event);
    }

    runEngine ({ position, clock.size() - position }, clock, frame, out);

    if (anyNote)
        pitchTables.publish (pitchTable, settings.limits);

    // Keys that are lifted one by one leave the whole chord.
    if (anyStart && ! pitchTable.getHeldNotes().isEmpty())
        lastChords.publish (pitchTable, settings.limits);
}

int MidiProcessor::runEngine (BlockSlice run,
                              const Sequencer::ClockSlice& clock,
                              const Sequencer::PatternFrame& frame,
                              Midi::EventWriter& out) noexcept
{
    rows.clear();
    const auto length = engine.run (clock.part (run), frame, rows);
    rowExpander.process (rows, pitchTable, out, run.start);
    return length;
}

void MidiProcessor::follow (const Midi::Event& note, const MidiSettings& settings) noexcept
{
    if (heldNotes.follow (note, settings.keyMode))
        pitchTable.rebuild (heldNotes, settings.limits);

    if (Midi::isNoteOn (note) && settings.retrigger)
        engine.requestRestart();
}
} // namespace Zn::Audio::Plugins::Vornel
