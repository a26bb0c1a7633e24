#include "Synth/WavetableSynth/SubTable.h"

#include "Foundation/Singleton.h"

#include <cmath>

namespace Zn::Audio::WavetableSynth
{
namespace
{
/** So many that the step from the last sample to the first, which is one sample's worth of slope, stays below -80 dB. */
constexpr int numSamples = 65536;

juce::AudioBuffer<float> sineCycle()
{
    juce::AudioBuffer<float> cycle (1, numSamples);

    for (auto i = 0; i < numSamples; ++i)
        cycle.setSample (0,
                         i,
                         static_cast<float> (std::sin (i * juce::MathConstants<double>::twoPi / numSamples)));

    return cycle;
}
} // namespace

const SubTable& SubTable::get()
{
    return Singleton::get<SubTable>();
}

SubTable::SubTable() : table (sineCycle()) {}
} // namespace Zn::Audio::WavetableSynth
