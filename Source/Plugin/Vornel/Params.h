#pragma once

#include "Parameters/HostParamList.h"
#include "Parameters/ParamKinds.h"
#include "Sequencer/SwingParam.h"
#include "Synth/WavetableSynth/Params.h"

namespace Zn::Audio::Plugins::Vornel
{
/** What a sound preset holds. */
struct SoundParams : ParamList
{
    SoundParams() { addChild ("Synth", synth); }

    IntParam unison { *this, "Unison", { 1, 2 }, 1 };
    FloatParam unisonAmount { *this, "UnisonAmount", { 0.0f, 1.0f }, 0.5f, "Unison Amount" };
    BoolParam synthEnable { *this, "SynthEnable", true, "Synth Enable" };
    VolumeParam master { *this, "Master", 3.0f, 0.0f };
    WavetableSynth::Params synth;
};

/** All parameters that the host or a preset knows.

    `Octave`, `Key` and `ArpActive` are performance controls: a preset does not touch them.
*/
struct Params : ParamList
{
    Params();

    ChoiceParam quantize { *this, "Quantize", { "4/4", "2/4", "1/4", "1/8", "1/16", "1/32" }, 2 };
    BoolParam retrigger { *this, "Retrigger", false };
    IntParam transpose { *this, "Transpose", { -12, 12 }, 0, {}, "st" }; // semitones
    IntParam octave { *this, "Octave", { -3, 3 }, 0, {}, "oct" };
    ChoiceParam key { *this, "Key", { "C", "Db", "D", "Eb", "E", "F", "Gb", "G", "Ab", "A", "Bb", "B" }, 0 };
    ChoiceParam arpActive { *this, "ArpActive", { "Off", "On" }, 1 };
    ListedParam<Sequencer::SwingParam> swing { *this, "Swing", "Swing" };
    ChoiceParam swingRef { *this, "SwingRef", { "1/8", "1/4", "1/2" }, 1 };
    SoundParams sound;

    /** Lists them under the identifiers and in the order that the host knows them by. */
    void forwardTo (HostParamList& host);
};

/** The parameters of a list that its preset files hold. */
std::vector<juce::AudioProcessorParameter*> parametersOfPreset (const ParamList& list);

/** Those of them that the host does not know, once the others have been given to it. */
std::vector<juce::AudioProcessorParameter*> parametersUnknownToHost (const ParamList& list);
} // namespace Zn::Audio::Plugins::Vornel
