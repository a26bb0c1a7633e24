#include "Synth/WavetableSynth/Params.h"

namespace Zn::Audio::WavetableSynth
{
OSCParams::OSCParams (const SampleList& list) : type (*this, "Type", "Type", list)
{
    addChild ("Unison", unison);
}

OscillatorParams::OscillatorParams (const SampleList& list)
    : oscillators { OSCParams { list }, OSCParams { list }, OSCParams { list }, OSCParams { list } }
{
    auto index = 0;

    for (auto& oscillator : oscillators)
        addChild ("OSC " + juce::String (index++), oscillator);
}

Params::Params (const SampleList& list) : oscillators (list)
{
    addChild ("Oscillators", oscillators);
    addChild ("Filter", filter);
    addChild ("ADSR", adsr);
    addChild ("Delay", delay);
    addChild ("Sub", sub);
}
} // namespace Zn::Audio::WavetableSynth
