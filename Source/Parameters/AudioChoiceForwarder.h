#pragma once

#include "Parameters/AudioParamForwarderBase.h"

namespace Zn::Parameters
{
/** A choice of the processor; a class derived from it may show other texts than the host sees. */
class AudioChoiceForwarder : public AudioParamForwarderBase
{
public:
    explicit AudioChoiceForwarder (juce::AudioParameterChoice& targetToUse,
                                   juce::AudioProcessorParameter* hostSideToUse = nullptr);

    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return getChoiceText (getInt()); }
    MenuItems::Item getMenuChoices() override; // the last choice first
    int getInt() const override { return choice.getIndex(); }

    /** Empty for an index outside the choices. */
    virtual juce::String getChoiceText (int index) const;

private:
    juce::AudioParameterChoice& choice;
};
} // namespace Zn::Parameters
