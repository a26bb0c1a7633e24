#include "Plugin/Vornel/Params.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
void forwardSynth (HostParamList& host, WavetableSynth::Params& synth)
{
    for (auto index = 0; auto& oscillator : synth.oscillators.oscillators)
    {
        const auto group = "OSC-" + juce::String (index++) + "-";
        host.forward (group + "Enable", oscillator.enable);
        host.forward (group + "Volume", oscillator.volume);
        host.forward (group + "Tune", oscillator.tune);
    }

    host.forward ("Sub-Octave", synth.sub.subOctave);
    host.forward ("Sub-Volume", synth.sub.subVolume);
    host.forward ("ADSR-Attack", synth.adsr.attack);
    host.forward ("ADSR-Decay", synth.adsr.decay);
    host.forward ("ADSR-Sustain", synth.adsr.sustain);
    host.forward ("ADSR-Release", synth.adsr.release);
    host.forward ("Filter-Enable", synth.filter.enable);
    host.forward ("Filter-Cutoff", synth.filter.cutoff);
    host.forward ("Filter-Reso", synth.filter.resonance);
    host.forward ("Filter-Key-Tracking", synth.filter.keyTracking);
    host.forward ("Delay-Analog", synth.delay.analog);
    host.forward ("Delay-Time-Free", synth.delay.time);
    host.forward ("Delay-Time-Sync", synth.delay.timeSync);
    host.forward ("Delay-Mode", synth.delay.mode);
    host.forward ("Delay-Feedback", synth.delay.feedback);
    host.forward ("Delay-Mix", synth.delay.mix);
}

template <typename Predicate>
std::vector<juce::AudioProcessorParameter*> select (const ParamList& list, Predicate&& isWanted)
{
    std::vector<juce::AudioProcessorParameter*> selected;

    list.forEachParam ([&] (const ParamHolderBase& holder) {
        if (isWanted (holder))
            selected.push_back (&holder.getParameter());
    });

    return selected;
}

bool isInPreset (const ParamHolderBase& holder) noexcept
{
    return holder.isReflectedFor (ReflectorContext::forPresetFile());
}
} // namespace

Params::Params()
{
    addChild ("Synth", sound);

    for (auto* performanceControl : std::initializer_list<ParamHolderBase*> { &octave, &key, &arpActive })
        performanceControl->setReflected (false, false);
}

void Params::forwardTo (HostParamList& host)
{
    host.forward ("Transpose", transpose);
    host.forward ("Octave", octave);
    host.forward ("Key", key);
    host.forward ("Quantize", quantize);
    host.forward ("Retrigger", retrigger);
    host.forward ("Swing", swing);
    host.forward ("Swing-Ref", swingRef);
    host.forward ("Enable-Synth", sound.synthEnable);
    host.forward ("Synth-Volume", sound.master);
    host.forward ("Unison-Voice", sound.unison);
    host.forward ("Unison-Amount", sound.unisonAmount);
    forwardSynth (host, sound.synth);
    host.forward ("Arp-Active", arpActive);
}

std::vector<juce::AudioProcessorParameter*> parametersOfPreset (const ParamList& list)
{
    return select (list, isInPreset);
}

std::vector<juce::AudioProcessorParameter*> parametersUnknownToHost (const ParamList& list)
{
    return select (list, [] (const auto& holder) {
        return isInPreset (holder) && holder.getHostSide() == nullptr;
    });
}
} // namespace Zn::Audio::Plugins::Vornel
