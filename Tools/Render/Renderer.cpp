#include "Renderer.h"

#include "InputPlayer.h"

#include <algorithm>

namespace Zn::Render
{
namespace
{
/** Prepares the processor for as long as it lives. */
class Session
{
public:
    Session (juce::AudioProcessor& processorToUse,
             juce::AudioPlayHead* playHead,
             double sampleRate,
             int largestBlock)
        : processor (processorToUse)
    {
        processor.setNonRealtime (true);
        processor.setPlayHead (playHead);
        processor.setRateAndBufferSizeDetails (sampleRate, largestBlock);
        processor.prepareToPlay (sampleRate, largestBlock);
    }

    ~Session()
    {
        processor.releaseResources();
        processor.setPlayHead (nullptr);
    }

    Session (const Session&) = delete;
    Session& operator= (const Session&) = delete;

    void process (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi)
    {
        const juce::ScopedLock lock (processor.getCallbackLock());

        if (processor.isSuspended())
            audio.clear();
        else
            processor.processBlock (audio, midi);
    }

private:
    juce::AudioProcessor& processor;
};

juce::AudioBuffer<float> viewOf (juce::AudioBuffer<float>& memory, int channels, int numSamples)
{
    return { memory.getArrayOfWritePointers(), channels, numSamples };
}
} // namespace

Renderer::Renderer (juce::AudioProcessor& processorToUse,
                    const MidiFileSource& sourceToUse,
                    const SongTimeline& timelineToUse,
                    Setup setupToUse)
    : processor (processorToUse), source (sourceToUse), timeline (timelineToUse), setup (setupToUse)
{}

void Renderer::run (std::span<OutputWriter* const> writers, const Progress& progress)
{
    HostClock clock (timeline, setup.clock.value_or (HostClock::Mode::playing));
    InputPlayer input (source, timeline);
    Session session (processor,
                     setup.clock ? &clock : nullptr,
                     timeline.getSampleRate(),
                     setup.blockSizes.getLargest());

    const auto outputs = processor.getTotalNumOutputChannels();
    const auto channels = std::max (outputs, processor.getTotalNumInputChannels());
    const auto total = getTotalSamples();
    juce::AudioBuffer<float> memory (channels, setup.blockSizes.getLargest());
    juce::MidiBuffer midi;

    for (juce::int64 first = 0; first < total;)
    {
        const auto size = static_cast<int> (std::min<juce::int64> (setup.blockSizes.next(), total - first));
        auto audio = viewOf (memory, channels, size);
        audio.clear();
        midi.clear();

        clock.moveTo (first);
        input.addEvents (midi, first, size);
        session.process (audio, midi);

        for (auto* writer : writers)
            writer->write ({ first, viewOf (memory, outputs, size), midi });

        first += size;
        progress (first, total);
    }
}

juce::int64 Renderer::getTotalSamples() const noexcept
{
    return timeline.getLengthSamples() + std::max<juce::int64> (1, setup.tailSamples);
}
} // namespace Zn::Render
