#include "Plugin/Vornel/MidiPipeline.h"

#include "Midi/StreamFilters.h"
#include "Plugin/Vornel/State.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
void append (juce::MidiBuffer& target, const juce::MidiBuffer& source, int sampleOffset) noexcept
{
    Midi::EventWriter writer (target);

    for (const auto event : source)
        writer.add (event, event.samplePosition + sampleOffset);
}

void releaseEverything (Midi::EventWriter& input) noexcept
{
    input.add (Midi::ShortMessage { { 0xB0, Midi::sustainController, 0 } }, 0);
    input.add (Midi::ShortMessage { { 0xB0, Midi::allNotesOffController, 0 } }, 0); // of a file, too

    for (auto note = 0; note < 128; ++note)
        input.add (Midi::ShortMessage::noteOff (1, note), 0);
}
} // namespace

MidiPipeline::MidiPipeline (State& stateToUse)
    : state (stateToUse), midiProcessor (stateToUse.pitchTables, stateToUse.lastChords, stateToUse.player)
{
    matched.reserve (Midi::Learn::maxEntries);
}

void MidiPipeline::prepare (int blockSize)
{
    midiProcessor.prepare (blockSize);
    bypassGate.prepare();

    for (auto* buffer : { &carried, &notes, &others, &segmentInput, &segment, &output, &scratch })
        buffer->ensureSize (Midi::reservedBufferBytes);
}

void MidiPipeline::process (juce::MidiBuffer& midi,
                            const Sequencer::ClockSlice& clock,
                            const Sequencer::PatternFrame& patterns,
                            const Midi::Learn::State& learn) noexcept
{
    takeInput (midi, clock.size());
    output.clear();

    if (std::exchange (wasBypassed, false))
        bypassGate.process (output, false, false); // ends what passed while bypassed

    runSegments (clock, patterns, learn);

    Midi::mergeEvents (scratch, output, others);
    Midi::flattenChannels (scratch, output);

    midi.clear();
    append (midi, output, 0);
}

void MidiPipeline::processBypassed (juce::MidiBuffer& midi,
                                    const Sequencer::ClockSlice& clock,
                                    const Sequencer::PatternFrame& patterns,
                                    const Midi::Learn::State& learn) noexcept
{
    takeInput (midi, clock.size());

    if (! std::exchange (wasBypassed, true))
        midiProcessor.endHeardNotes (midi);

    bypassGate.process (midi, true, true);

    output.clear();
    runSegments (clock, patterns, learn);
}

void MidiPipeline::keepForNextBlock (juce::MidiBuffer& midi) noexcept
{
    Midi::appendThreeByteMessages (midi, carried, 1);
    midi.clear();
}

void MidiPipeline::takeInput (const juce::MidiBuffer& midi, int numSamples) noexcept
{
    notes.swapWith (carried);
    carried.clear();

    Midi::appendThreeByteMessages (midi, notes, numSamples);
    state.inbox.drainInto (notes);
    Midi::flattenChannels (scratch, notes);
    Midi::splitNotesAndPedal (scratch, others, notes);
}

void MidiPipeline::runSegments (const Sequencer::ClockSlice& clock,
                                const Sequencer::PatternFrame& patterns,
                                const Midi::Learn::State& learn) noexcept
{
    auto start = 0;
    segmentInput.clear();
    Midi::EventWriter input (segmentInput);

    if (state.takePanic()) // past the handlers, or the pedal's lift would move what it has been learned for
        releaseEverything (input);

    for (const auto event : notes)
    {
        collectMatches (event, learn);

        // What came before acts first, so that a handler changes the sound at its own sample.
        if (! matched.empty() && event.samplePosition > start)
        {
            runSegment ({ start, event.samplePosition - start }, clock, patterns);
            input.clear();
            start = event.samplePosition;
        }

        for (auto* handler : matched)
            handler->handle (event.getMessage());

        if (downKeys.goesOn (event, ! matched.empty()))
            input.add (event);
    }

    runSegment ({ start, clock.size() - start }, clock, patterns);
    matched.clear();
}

void MidiPipeline::collectMatches (const Midi::Event& event, const Midi::Learn::State& learn) noexcept
{
    matched.clear();

    if (learn.learner != nullptr && learn.learner->offer (event))
        return;

    for (const auto& handler : learn.handlers)
        if (handler->matches (event.getMessage()))
            matched.push_back (handler.get());
}

void MidiPipeline::runSegment (BlockSlice run,
                               const Sequencer::ClockSlice& clock,
                               const Sequencer::PatternFrame& patterns) noexcept
{
    segment.clear();
    append (segment, segmentInput, -run.start);

    auto settings = state.readMidiSettings();
    settings.playsFile &= patterns.patterns != nullptr; // it rests with them while a project is on its way

    midiProcessor.process (segment, clock.part (run), patterns, settings);
    append (output, segment, run.start);
}
} // namespace Zn::Audio::Plugins::Vornel
