#include "Plugin/Vornel/MidiPipeline.h"

#include "Midi/StreamFilters.h"
#include "Plugin/Vornel/State.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr auto allChannels = 16; // what passes while bypassed keeps its own

void append (juce::MidiBuffer& target, const juce::MidiBuffer& source, int sampleOffset) noexcept
{
    Midi::EventWriter writer (target);

    for (const auto event : source)
        writer.add (event, event.samplePosition + sampleOffset);
}

void liftEveryKey (Midi::EventWriter& out) noexcept
{
    for (auto note = 0; note < 128; ++note)
        out.add (Midi::ShortMessage::noteOff (1, note), 0);
}

/** Not every instrument and host knows the controllers: the channel on which ours hear us gets note-offs, too. */
void silenceInstruments (Midi::EventWriter& out, int numChannels) noexcept
{
    for (auto channel = 1; channel <= numChannels; ++channel)
        for (const auto number :
             { Midi::sustainController, Midi::allSoundOffController, Midi::allNotesOffController })
            out.add (Midi::ShortMessage::controller (channel, number, 0), 0);

    liftEveryKey (out);
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

    for (auto* buffer : { &carried, &notes, &others, &segmentInput, &segment, &output, &scratch })
        buffer->ensureSize (Midi::reservedBufferBytes);
}

void MidiPipeline::process (juce::MidiBuffer& midi,
                            const Sequencer::ClockSlice& clock,
                            const Sequencer::PatternFrame& patterns,
                            const Midi::Learn::State& learn) noexcept
{
    takeInput (midi, clock.size());
    midi.clear();
    output.clear();

    if (std::exchange (wasBypassed, false))
    {
        Midi::EventWriter ends (midi), unheard (scratch);
        passed.end (ends, 0);

        if (panics)
            silenceInstruments (ends, allChannels);

        unheard.clear();
        midiProcessor.endHeardNotes (unheard);
    }

    letGo (clock, patterns);

    if (std::exchange (panics, false))
    {
        Midi::EventWriter ends (output);
        silenceInstruments (ends, 1);
    }

    runSegments (clock, patterns, learn);

    Midi::mergeEvents (scratch, output, others);
    Midi::flattenChannels (scratch, output);
    append (midi, output, 0);
}

void MidiPipeline::processBypassed (juce::MidiBuffer& midi,
                                    const Sequencer::ClockSlice& clock,
                                    const Sequencer::PatternFrame& patterns,
                                    const Midi::Learn::State& learn) noexcept
{
    endBeforeBypassed();
    append (output, carried, 0);
    takeInput (midi, clock.size());

    if (! output.isEmpty())
    {
        append (output, midi, 0);
        midi.clear();
        append (midi, output, 0);
    }

    passed.follow (midi);
    output.clear();
    letGo (clock, patterns);
    panics = false;

    runSegments (clock, patterns, learn);
}

/** Begins the block with the ends of what is not to sound on. */
void MidiPipeline::endBeforeBypassed() noexcept
{
    output.clear();

    if (! std::exchange (wasBypassed, true))
    {
        Midi::EventWriter ends (output);
        midiProcessor.endHeardNotes (ends);
        Midi::flattenChannels (scratch, output); // they end where they have begun
    }

    Midi::EventWriter ends (output);

    if (letsGo)
        passed.end (ends, 0);

    if (panics)
        silenceInstruments (ends, allChannels);
}

void MidiPipeline::release() noexcept
{
    letsGo = true;
    downKeys = {};
    midiProcessor.forgetFile(); // it is nobody's hand
    forgetCarriedKeys();
}

void MidiPipeline::panic() noexcept
{
    letsGo = panics = true;
    forgetCarriedKeys();
}

void MidiPipeline::forgetCarriedKeys() noexcept
{
    Midi::splitNotesAndPedal (scratch, others, carried);
    carried.swapWith (others);
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

/** A run of no samples, ahead of the block's own keys and past what they have been learned for. */
void MidiPipeline::letGo (const Sequencer::ClockSlice& clock,
                          const Sequencer::PatternFrame& patterns) noexcept
{
    if (! std::exchange (letsGo, false))
        return;

    segmentInput.clear();
    Midi::EventWriter input (segmentInput);
    input.add (Midi::ShortMessage::controller (1, Midi::sustainController, 0), 0);
    input.add (Midi::ShortMessage::controller (1, Midi::allNotesOffController, 0), 0); // of a file, too
    liftEveryKey (input);

    runSegment ({ 0, 0 }, clock, patterns);

    Midi::EventWriter ends (output);
    midiProcessor.endHeardNotes (ends);
}

void MidiPipeline::runSegments (const Sequencer::ClockSlice& clock,
                                const Sequencer::PatternFrame& patterns,
                                const Midi::Learn::State& learn) noexcept
{
    auto start = 0;
    segmentInput.clear();
    Midi::EventWriter input (segmentInput);

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
