#include "Synth/WavetableSynth/OscillatorParam.h"

#include "Synth/WavetableSynth/TableNames.h"

namespace Zn::Audio::WavetableSynth
{
OscillatorParam::OscillatorParam (const juce::ParameterID& identifier,
                                  const juce::String& displayName,
                                  const SampleList& listToUse)
    : AudioParameterChoice (
        identifier,
        displayName,
        listToUse.getNames(),
        0,
        juce::AudioParameterChoiceAttributes()
            .withStringFromValueFunction (
                [&listToUse] (int index, int) { return listToUse.getShortNames()[index]; })
            .withValueFromStringFunction ([this] (const juce::String& text) { return indexFromText (text); }))
    , list (listToUse)
{}

int OscillatorParam::indexFromText (const juce::String& text) const
{
    const auto index = list.getShortNames().indexOf (text.trim());
    return index >= 0 ? index : getIndex();
}

OSCForwarder::OSCForwarder (OscillatorParam& targetToUse, juce::AudioProcessorParameter* hostSideToUse)
    : AudioChoiceForwarder (targetToUse, hostSideToUse)
{
    for (const auto& name : targetToUse.choices)
        displayNames.add (shortNameOf (name));
}

juce::String OSCForwarder::getChoiceText (int index) const
{
    return displayNames[index];
}
} // namespace Zn::Audio::WavetableSynth
