#pragma once

#include "Foundation/Events/Listener.h"
#include "Foundation/GUIToRealTime.h"
#include "Plugin/Bases/Processor.h"
#include "Plugin/Transport/TransportSlice.h"
#include "Plugin/Vornel/AudioPipeline.h"
#include "Plugin/Vornel/MidiPipeline.h"
#include "Plugin/Vornel/State.h"
#include "Presets/Undo/PresetLoads.h"
#include "Sequencer/PatternFrame.h"

#include <array>
#include <optional>

namespace Zn::Audio::Plugins::Vornel
{
/** What a new processor begins with. */
enum class StartUp
{
    presets, // the default preset of each library; the first processor of the process installs the factory presets
    empty // no notes and the plain sound, without a look at any preset file
};

/** The one object that the host calls on its audio thread: each block it takes the newest pattern, moves the clock, and
    turns the host's MIDI into the pattern's notes.
*/
class Processor : public Plugin::Processor<State>
{
public:
    explicit Processor (StartUp startUp = StartUp::presets, Role role = Role::instrument);
    ~Processor() override;

    /** How long a note sounds on when its key is up: its release, then its echoes. Thread: any. */
    double getTailLengthSeconds() const override;

    /** Makes the chance of steps repeatable, for renders that must agree. Thread: prepare. */
    void setSeed (juce::int64 seed) noexcept { midi.setSeed (seed); }

    /** Chooses the slot that the next block begins with, without waiting for the quantum. Thread: prepare. */
    void setStartSlot (int slot) noexcept;

protected:
    void prepare (double sampleRate, int maxBlockSize) override;
    void release() override;
    void process (juce::AudioBuffer<float>& audio, juce::MidiBuffer& hostMidi) noexcept override;
    void processBypassed (juce::AudioBuffer<float>& audio, juce::MidiBuffer& hostMidi) noexcept override;
    void keepForNextBlock (juce::MidiBuffer& hostMidi) noexcept override
    {
        followPanic();
        midi.keepForNextBlock (hostMidi);
    }
    void hostStateLoaded() override;

private:
    using PatternRing = GUIToRealTime<Sequencer::PatternFrame, 5>;
    using LearnRing = GUIToRealTime<Midi::Learn::State, 5>;

    void publishPatterns();
    void publishLearnTable();
    const Sequencer::PatternFrame& newestPatterns() noexcept;
    void followPanic() noexcept;
    Sequencer::ClockSlice advanceClock (int numSamples) noexcept;

    PatternRing patternRing;
    PatternRing::Writer patternWriter = patternRing.getWriter(); // thread: message
    PatternRing::Reader patternReader = patternRing.getReader();

    const Sequencer::PatternFrame noPatterns {};

    LearnRing learnRing;
    LearnRing::Writer learnWriter = learnRing.getWriter(); // thread: message
    LearnRing::Reader learnReader = learnRing.getReader();

    /** The first is the block's transport; the others are prepared with it and stand still. */
    std::array<InternalPlayHead, 4> playHeads;

    MidiPipeline midi;
    AudioPipeline sound;
    Events::Listener patternListener, learnListener, learnBegins, learnEnds, projectListener;
    std::optional<Undo::PresetLoads> patternLoads, soundLoads;
};
} // namespace Zn::Audio::Plugins::Vornel
