#pragma once

#include "Synth/MPESynth.h"
#include "Synth/WavetableSynth/Voice.h"

namespace Zn::Audio::WavetableSynth
{
/** The wavetable synthesiser: a pool of voices that share one reading of the parameters. Thread: audio. */
class Synth : public MPESynth<Voice, DefaultVoiceStealer>
{
public:
    explicit Synth (const Kernels::VoiceKernels& kernels = Kernels::bestKernels());

    /** Silences everything and takes a sample rate in hertz, above 0. Thread: prepare. */
    void prepare (double sampleRate) noexcept;

    /** What the next block follows. The sample rate in it is set here. */
    void setSettings (const VoiceSettings& newSettings) noexcept;

private:
    VoiceSettings settings;
};
} // namespace Zn::Audio::WavetableSynth
