#include "Plugin/Vornel/Processor.h"

#include "Foundation/Events/GarbageCollector.h"
#include "Plugin/Transport/ClockSelection.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
/** A preset that cannot be loaded leaves what it has set so far, which is no reason to refuse the host. */
void loadDefaultPresets (State& state) noexcept
{
    try
    {
        state.init();
    }
    catch (const std::exception&)
    {}
}
} // namespace

Processor::Processor (StartUp startUp, Role role)
    : Plugin::Processor<State> (role)
    , midi (*state)
    , sound (*state)
    , patternListener (state->patterns.getAudioBroadcaster(), [this] { publishPatterns(); })
    , learnListener (state->learnMap.getTableBroadcaster(),
                     [this] {
                         publishLearnTable();
                         projectEdited();
                         getUndo().markChanged();
                     })
    , learnBegins (state->learnMap.editBegins, [this] { getUndo().begin(); })
    , learnEnds (state->learnMap.editEnds, [this] { getUndo().end ("Learn"); })
    , projectListener ([this] { projectEdited(); })
{
    state->learnMap.setParameters (hostParameters);
    publishLearnTable();
    publishPatterns();
    prepare (defaultSampleRate, defaultBlockSize);

    if (startUp == StartUp::presets)
        loadDefaultPresets (*state);

    state->projectChanged.add (projectListener); // the presets above are no edit
    patternLoads.emplace (getUndo(), *state);
    soundLoads.emplace (getUndo(), state->synthPreset);
    startHostState();
    state->startFollowing(); // last: from here on the message thread has its part in it
}

Processor::~Processor()
{
    stopHostState();
    state->stopFollowing(); // both first, as hosts destroy processors on any thread
    patternListener.detach();
    learnListener.detach();
    projectListener.detach();
    learnWriter.replaceAll ({});
    patternWriter.replaceAll ({});
    Events::GarbageCollector::getInstance().collectNow();
}

void Processor::hostStateLoaded()
{
    state->forgetChanges();
    Plugin::Processor<State>::hostStateLoaded();
}

void Processor::setStartSlot (int slot) noexcept
{
    state->liveSlots->index.store (slot);
    state->liveSlots->heard.store (slot);
}

void Processor::prepare (double sampleRate, int maxBlockSize)
{
    auto& blockTransport = playHeads.front();
    blockTransport.prepare (sampleRate, maxBlockSize);
    state->playHead->isPlaying.exchange (true);

    for (auto& spare : std::span (playHeads).subspan (1))
        spare.prepare (sampleRate, maxBlockSize);

    midi.prepare (maxBlockSize);

    if (! isMidiEffect())
        sound.prepare (sampleRate, maxBlockSize);

    state->followChanges();
}

void Processor::release()
{
    midi.release();

    if (! isMidiEffect())
        sound.silence();
}

double Processor::getTailLengthSeconds() const
{
    if (isMidiEffect())
        return 0.0;

    const auto& synth = state->params.sound.synth;
    return double (synth.adsr.release.get()) + synth.delay.tailSeconds (double (state->playHead->bpm.load()));
}

void Processor::process (juce::AudioBuffer<float>& audio, juce::MidiBuffer& hostMidi) noexcept
{
    followPanic();
    const auto& patterns = newestPatterns();
    const auto block = advanceClock (audio.getNumSamples());

    midi.process (hostMidi, block, patterns, learnReader.newest());

    if (! isMidiEffect())
        sound.process (audio, hostMidi, playHeads.front().getTempo());
}

void Processor::processBypassed (juce::AudioBuffer<float>& audio, juce::MidiBuffer& hostMidi) noexcept
{
    followPanic();
    const auto& patterns = newestPatterns();
    const auto block = advanceClock (audio.getNumSamples());

    if (! isMidiEffect())
        sound.processBypassed (hostMidi);

    midi.processBypassed (hostMidi, block, patterns, learnReader.newest());
}

/** Asked for before the editor's keys are fetched: those that come after the panic play. */
void Processor::followPanic() noexcept
{
    if (! state->takePanic())
        return;

    midi.panic();

    if (! isMidiEffect())
        sound.silence();
}

/** While a project waits to be taken in, the engine rests and ends its notes: neither the old patterns nor the default
    ones may sound in the meantime.
*/
const Sequencer::PatternFrame& Processor::newestPatterns() noexcept
{
    const auto waits =
        isLoadPending(); // asked first: once it is over, the newest patterns are those of the project
    const auto& newest = patternReader.newest();
    return waits ? noPatterns : newest;
}

Sequencer::ClockSlice Processor::advanceClock (int numSamples) noexcept
{
    auto& clock = playHeads.front();
    updateClock (clock, *state->playHead, getPlayHead(), state->keyMode.load(), numSamples);
    return TransportSlice (clock).clock();
}

void Processor::publishPatterns()
{
    JUCE_ASSERT_MESSAGE_THREAD

    patternWriter.publish ([this] (Sequencer::PatternFrame& frame) {
        frame.patterns = state->patterns.getPatternData();
        frame.liveSlots = state->liveSlots;
        frame.playHead = state->playHead;
    });
}

void Processor::publishLearnTable()
{
    JUCE_ASSERT_MESSAGE_THREAD

    learnWriter.publish ([this] (Midi::Learn::State& frame) {
        frame.learner = &state->learner;
        frame.handlers = state->learnMap.getHandlers();
    });
}
} // namespace Zn::Audio::Plugins::Vornel
