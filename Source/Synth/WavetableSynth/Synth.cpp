#include "Synth/WavetableSynth/Synth.h"

namespace Zn::Audio::WavetableSynth
{
Synth::Synth (const Kernels::VoiceKernels& kernels)
{
    for (auto& voice : voices)
        voice.use (settings, kernels);
}

void Synth::prepare (double sampleRate) noexcept
{
    stopAll();
    settings.sampleRate = sampleRate;

    for (auto& voice : voices)
        voice.prepare (sampleRate);
}

void Synth::setSettings (const VoiceSettings& newSettings) noexcept
{
    const auto sampleRate = settings.sampleRate;
    settings = newSettings;
    settings.sampleRate = sampleRate;
}
} // namespace Zn::Audio::WavetableSynth
