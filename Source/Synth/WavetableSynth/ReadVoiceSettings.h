#pragma once

#include "Synth/WavetableSynth/Params.h"
#include "Synth/WavetableSynth/SampleList.h"
#include "Synth/WavetableSynth/SubTable.h"
#include "Synth/WavetableSynth/VoiceSettings.h"

namespace Zn::Audio::WavetableSynth
{
/** The tables of the process. Whoever has one holds a Singleton::UserToken; the audio thread must not ask for them. */
struct Tables
{
    const SampleList& list = SampleList::get();
    const SubTable& sub = SubTable::get();
};

/** Reads what all voices of a block follow. The sample rate in hertz turns the times of the envelope into steps.
    Thread: audio.
*/
VoiceSettings readVoiceSettings (const Params& params, const Tables& tables, double sampleRate) noexcept;
} // namespace Zn::Audio::WavetableSynth
