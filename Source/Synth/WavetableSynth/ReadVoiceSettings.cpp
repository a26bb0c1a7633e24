#include "Synth/WavetableSynth/ReadVoiceSettings.h"

namespace Zn::Audio::WavetableSynth
{
namespace
{
/** The control's top switches the filter off: from here on up it changes nothing that could be heard. */
constexpr float topOfCutoff = 0.999f; // normalised

OscillatorSettings read (const OSCParams& params, const SampleList& tables) noexcept
{
    return { .enabled = params.enable.get(),
             .table = tables.getTable (params.type->getIndex()),
             .octave = params.octave.get(),
             .tune = params.tune.get(),
             .unison = params.unison.unison.get(),
             .spread = params.unison.unisonSpread.get(),
             .volume = params.volume.get() };
}

FilterSettings read (const FilterParams& params) noexcept
{
    const auto isOpen = params.cutoff.getParameter().getValue() >= topOfCutoff;

    return { .enabled = params.enable.get() && ! isOpen,
             .cutoffHz = params.cutoff.get(),
             .resonance = params.resonance.get(),
             .keyTracking = params.keyTracking.get() };
}
} // namespace

VoiceSettings readVoiceSettings (const Params& params, const Tables& tables, double sampleRate) noexcept
{
    VoiceSettings settings;
    const auto& oscillators = params.oscillators.oscillators;

    for (std::size_t i = 0; i < settings.oscillators.size(); ++i)
        settings.oscillators[i] = read (oscillators[i], tables.list);

    settings.sub = { tables.sub.view(), params.sub.subOctave.get(), params.sub.subVolume.get() };
    settings.filter = read (params.filter);

    const auto& adsr = params.adsr;
    settings.envelope = Kernels::makeEnvelopeRates (adsr.attack.get(),
                                                    adsr.decay.get(),
                                                    adsr.sustain.get(),
                                                    adsr.release.get(),
                                                    sampleRate);
    settings.sampleRate = sampleRate;
    return settings;
}
} // namespace Zn::Audio::WavetableSynth
