#pragma once

#include "Plugin/Bases/Base.h"

namespace Zn::Audio::Plugin
{
/** The frame around a block: what must be right before any musical work begins.

    What a project has brought is loaded before the first block, where the message thread can be had, and before any
    block of an offline render, which does not play on without it.

    A block always leaves with its audio input cleared. Mono blocks and blocks of no samples go no further. A MIDI effect,
    whose host brings no audio, works on silence of its own. Rates and sizes that make no sense are replaced, so that
    everything behind this class may rely on them.
*/
template <typename StateType>
class Processor : public Base<StateType>
{
public:
    using Base<StateType>::Base;

    void prepareToPlay (double sampleRate, int maxBlockSize) final
    {
        this->finishPendingLoad();
        const auto usable = sampleRate > 0.0 && maxBlockSize > 0;
        const auto mostSamples = usable ? maxBlockSize : defaultBlockSize;

        if (this->isMidiEffect())
            silence.setSize (stereo, mostSamples);

        prepare (usable ? sampleRate : defaultSampleRate, mostSamples);
    }

    void processBlock (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi) final
    {
        run (audio, midi, &Processor::process);
    }

    void processBlockBypassed (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi) final
    {
        run (audio, midi, &Processor::processBypassed);
    }

    using juce::AudioProcessor::processBlock;
    using juce::AudioProcessor::processBlockBypassed;

    void releaseResources() final { release(); }

protected:
    static constexpr double defaultSampleRate = 44100.0;
    static constexpr int defaultBlockSize = 512;

    /** Sizes everything. sampleRate and maxBlockSize are above 0. Thread: prepare. */
    virtual void prepare (double sampleRate, int maxBlockSize) = 0;

    /** The host stops: what sounded must not come back. Thread: prepare. */
    virtual void release() = 0;

    /** At least one sample of cleared stereo audio, and the host's MIDI, which becomes ours. Thread: audio. */
    virtual void process (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi) noexcept = 0;

    /** The same while the host bypasses the plug-in. Thread: audio. */
    virtual void processBypassed (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi) noexcept = 0;

    /** There is no sample to place these messages on: takes them out of `midi` until there is. Thread: audio. */
    virtual void keepForNextBlock (juce::MidiBuffer& midi) noexcept = 0;

private:
    using Step = void (Processor::*) (juce::AudioBuffer<float>&, juce::MidiBuffer&) noexcept;

    void run (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi, Step step) noexcept
    {
        const juce::ScopedNoDenormals noDenormals;
        audio.clear();

        if (this->isNonRealtime())
            this->finishPendingLoad();

        if (audio.getNumChannels() < stereo && ! this->isMidiEffect())
            return;

        if (audio.getNumSamples() == 0)
            keepForNextBlock (midi);
        else
            (this->*step) (this->isMidiEffect() ? silenceOf (audio.getNumSamples()) : audio, midi);
    }

    juce::AudioBuffer<float>& silenceOf (int numSamples) noexcept
    {
        silence.setSize (stereo,
                         numSamples,
                         false,
                         false,
                         true); // allocates for a block longer than announced
        silence.clear();
        return silence;
    }

    static constexpr int stereo = 2;

    juce::AudioBuffer<float> silence; // of a MIDI effect
};
} // namespace Zn::Audio::Plugin
