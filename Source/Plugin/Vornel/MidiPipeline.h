#pragma once

#include "Midi/Learn/DownKeys.h"
#include "Midi/Learn/State.h"
#include "Midi/LooseEnds.h"
#include "Plugin/Vornel/MidiProcessor.h"

namespace Zn::Audio::Plugins::Vornel
{
class State;

/** The MIDI side of a block: reduces what the host sends, lets learned messages act at their sample, runs the segments
    between them, and hands back what the host receives.

    Only 3-byte messages live on; all leave on channel 1, but for the ends of what passed while bypassed. Notes and the
    sustain pedal go through the pattern, all else goes around it. The host's buffer is never swapped with ours, so it
    grows only if the host gave less room than the result needs. Thread: audio.
*/
class MidiPipeline
{
public:
    explicit MidiPipeline (State& stateToUse);

    /** Reserves for blocks of this size. Thread: prepare. */
    void prepare (int blockSize);

    /** Makes the chance of steps repeatable. Thread: prepare. */
    void setSeed (juce::int64 seed) noexcept { midiProcessor.setSeed (seed); }

    /** Replaces `midi` by what the block gives. */
    void process (juce::MidiBuffer& midi,
                  const Sequencer::ClockSlice& clock,
                  const Sequencer::PatternFrame& patterns,
                  const Midi::Learn::State& learn) noexcept;

    /** The same while the host bypasses us: everything goes on unheard, so that keys and clock are right afterwards,
        and `midi` passes. What was heard when the bypass began ends with it; what passed ends when it is over.
    */
    void processBypassed (juce::MidiBuffer& midi,
                          const Sequencer::ClockSlice& clock,
                          const Sequencer::PatternFrame& patterns,
                          const Midi::Learn::State& learn) noexcept;

    /** Forgets keys and pedal, whose lifts get lost while the host stops. What is heard ends with the next block, as
        there is nowhere to send its ends before. Thread: prepare.
    */
    void release() noexcept;

    /** The next block begins with silence: it lets go of every key and of the pedal, past what they have been learned
        for, ends what is heard, and tells the instruments behind us.
    */
    void panic() noexcept;

    /** Takes the messages of a block without samples and brings them at the start of the next one. */
    void keepForNextBlock (juce::MidiBuffer& midi) noexcept;

private:
    void takeInput (const juce::MidiBuffer& midi, int numSamples) noexcept;
    void endBeforeBypassed() noexcept;
    void forgetCarriedKeys() noexcept;
    void letGo (const Sequencer::ClockSlice& clock, const Sequencer::PatternFrame& patterns) noexcept;
    void runSegments (const Sequencer::ClockSlice& clock,
                      const Sequencer::PatternFrame& patterns,
                      const Midi::Learn::State& learn) noexcept;
    void runSegment (BlockSlice segment,
                     const Sequencer::ClockSlice& clock,
                     const Sequencer::PatternFrame& patterns) noexcept;
    void collectMatches (const Midi::Event& event, const Midi::Learn::State& learn) noexcept;

    State& state;
    MidiProcessor midiProcessor;

    juce::MidiBuffer carried;      // messages of blocks without samples
    juce::MidiBuffer notes;        // notes and sustain pedal of the block
    juce::MidiBuffer others;       // all else of the block
    juce::MidiBuffer segmentInput; // notes since the last split, at samples of the block
    juce::MidiBuffer segment;      // the same while it is run, at samples of the segment
    juce::MidiBuffer output;
    juce::MidiBuffer scratch;
    std::vector<Midi::Learn::Handler*> matched;
    Midi::Learn::DownKeys downKeys;

    Midi::LooseEnds passed; // of what passed while bypassed
    bool wasBypassed = false;
    bool letsGo = false, panics = false; // with the next block; a panic lets go, too
};
} // namespace Zn::Audio::Plugins::Vornel
