#pragma once

#include "Parameters/ParamKinds.h"
#include "Synth/AnalogDelay/Params.h"
#include "Synth/WavetableSynth/OscillatorParam.h"
#include "Synth/WavetableSynth/VoiceSettings.h"

#include <array>

namespace Zn::Audio::WavetableSynth
{
struct UnisonParams : ParamList
{
    IntParam unison { *this, "Unison", { 1, 2 }, 1 };                                      // voices
    FloatParam unisonDepth { *this, "UnisonDepth", { 0.0f, 1.0f }, 0.5f, "Unison Depth" }; // kept, not heard
    FloatParam unisonSpread { *this, "UnisonSpread", { 0.0f, 1.0f }, 0.5f, "Unison Spread" };
};

struct OSCParams : ParamList
{
    explicit OSCParams (const SampleList& list);

    ListedParam<OscillatorParam> type;
    BoolParam enable { *this, "Enable", true };
    IntParam octave { *this, "Octave", { -3, 3 }, 0, {}, "oct" };
    IntParam tune { *this, "Tune", { -24, 24 }, 0, {}, "st" }; // semitones
    VolumeParam volume { *this, "Volume", 6.0f, -15.0f };
    UnisonParams unison;
};

struct OscillatorParams : ParamList
{
    explicit OscillatorParams (const SampleList& list);

    BoolParam sync { *this, "Sync", false }; // kept, not heard
    std::array<OSCParams, numOscillators> oscillators;
};

struct SubOSCParams : ParamList
{
    VolumeParam subVolume { *this, "SubVolume", 3.0f, 0.0f };
    IntParam subOctave { *this, "SubOctave", { -3, 3 }, -2, {}, "oct" };
};

struct FilterParams : ParamList
{
    BoolParam enable { *this, "Enable", true };
    FloatParam cutoff { *this, "Cutoff", { 10.0f, 12000.0f }, 8000.0f, {}, "Hz" };
    FloatParam resonance { *this, "Resonance", { 0.1f, 3.0f }, 1.0f }; // Q
    FloatParam keyTracking { *this, "KeyTracking", { 0.0f, 1.0f }, 1.0f, "Key Tracking" };
};

struct ADSRParams : ParamList
{
    FloatParam attack { *this, "Attack", { 0.005f, 1.0f }, 0.005f, {}, "s" };
    FloatParam decay { *this, "Decay", { 0.005f, 1.0f }, 1.0f, {}, "s" };
    FloatParam sustain { *this, "Sustain", { 0.005f, 1.0f }, 1.0f }; // level
    FloatParam release { *this, "Release", { 0.005f, 1.0f }, 0.01f, {}, "s" };
};

/** Every parameter of the synth and of its delay, under the keys that presets store. The list of wavetables must live
    as long; with that of the process, whoever owns the parameters holds a Singleton::UserToken.
*/
struct Params : ParamList
{
    explicit Params (const SampleList& list = SampleList::get());

    OscillatorParams oscillators;
    FilterParams filter;
    ADSRParams adsr;
    AnalogDelay::Params delay;
    SubOSCParams sub;
};
} // namespace Zn::Audio::WavetableSynth
