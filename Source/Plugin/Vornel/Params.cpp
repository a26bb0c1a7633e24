#include "Plugin/Vornel/Params.h"

namespace Zn::Audio::Plugins::Vornel
{
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
    host.forward ("Arp-Active", arpActive);
}
} // namespace Zn::Audio::Plugins::Vornel
