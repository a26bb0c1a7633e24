#include "Synth/WavetableSynth/Wavetable.h"

#include <algorithm>
#include <cstddef>

namespace Zn::Audio::WavetableSynth
{
Wavetable::Wavetable (const juce::AudioBuffer<float>& cycle, float gain)
{
    using View = Kernels::TableView;

    const auto numChannels = static_cast<std::size_t> (cycle.getNumChannels());
    const auto numFrames = cycle.getNumSamples();
    jassert (numChannels >= 1 && numChannels <= 2 && numFrames >= 2);

    const auto frame = [numChannels] (int index) { return static_cast<std::size_t> (index) * numChannels; };
    storage.resize (frame (View::guardFramesAhead + numFrames + View::guardFramesBehind));

    for (std::size_t channel = 0; channel < numChannels; ++channel)
    {
        const auto* source = cycle.getReadPointer (static_cast<int> (channel));
        auto* destination = storage.data() + channel;

        for (auto i = -View::guardFramesAhead; i < numFrames + View::guardFramesBehind; ++i)
        {
            *destination = source[std::clamp (i, 0, numFrames - 1)] * gain;
            destination += numChannels;
        }
    }

    table = { storage.data() + frame (View::guardFramesAhead), numFrames, cycle.getNumChannels() };
}

float evenedLoudness (const juce::AudioBuffer<float>& cycle)
{
    auto loudest = 0.0f;

    for (auto channel = 0; channel < cycle.getNumChannels(); ++channel)
        loudest = std::max (loudest, cycle.getRMSLevel (channel, 0, cycle.getNumSamples()));

    return std::max (0.0f, 1.0f - loudest);
}
} // namespace Zn::Audio::WavetableSynth
