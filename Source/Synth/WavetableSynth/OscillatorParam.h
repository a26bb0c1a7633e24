#pragma once

#include "Parameters/AudioChoiceForwarder.h"
#include "Synth/WavetableSynth/SampleList.h"

namespace Zn::Audio::WavetableSynth
{
/** Which wavetable an oscillator plays: its place in the list. Its text is the wavetable's short name, which presets
    store; a text that names no wavetable leaves the value as it is, so that a preset made with another user's tables
    does not change the sound to the first of the list.
*/
class OscillatorParam : public juce::AudioParameterChoice
{
public:
    OscillatorParam (const juce::ParameterID& identifier,
                     const juce::String& displayName,
                     const SampleList& listToUse);

private:
    int indexFromText (const juce::String& text) const;

    const SampleList& list;
};

/** What the editor holds of an OscillatorParam: the same choice under short names. */
class OSCForwarder : public Parameters::AudioChoiceForwarder
{
public:
    explicit OSCForwarder (OscillatorParam& targetToUse,
                           juce::AudioProcessorParameter* hostSideToUse = nullptr);

    juce::String getChoiceText (int index) const override;

private:
    juce::StringArray displayNames;
};
} // namespace Zn::Audio::WavetableSynth
