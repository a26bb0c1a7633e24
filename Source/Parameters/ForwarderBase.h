#pragma once

#include "Parameters/Parameter.h"
#include "Parameters/ParameterText.h"
#include "Parameters/TargetValue.h"

namespace Zn::Parameters
{
template <typename Target>
class ForwarderBase;

/** The part of the façade that any host-visible parameter can answer by itself.

    The target must outlive it.
*/
template <>
class ForwarderBase<juce::AudioProcessorParameter> : public Parameter
{
public:
    explicit ForwarderBase (juce::AudioProcessorParameter& targetToUse);

    float getNormalised() const override { return target->getValue(); }
    void setRawNormalised (float normalised) override;
    void setInt (int value) override { setWholeNumber (*target, value); }
    void setDouble (double value) override { setPlainValue (*target, value); }
    juce::String getName() const override { return target->getName (maxTextLength); }
    juce::String getTextForNormalised (float normalised) const override
    {
        return textOf (*target, normalised);
    }
    juce::String getCurrentText() const override { return currentTextOf (*target); }
    void setFromText (const juce::String& text) override { Parameters::setFromText (*target, text); }
    void setNormalisedNotifying (float normalised) override { setNormalised (*target, normalised); }
    MenuItems::Item getMenuChoices() override;
    float getFloat() const override { return plainValueOf (*target); }
    bool differsFrom (float normalised, float plain) const override;
    bool isHostVisible() const override { return true; }
    bool hasSteps() const override { return getNumSteps() > 0; }
    int getNumSteps() const override;
    float getDefault() const override { return target->getDefaultValue(); }

    juce::AudioProcessorParameter& getTarget() const noexcept { return *target; }

private:
    juce::AudioProcessorParameter* const target;
    const juce::AudioParameterFloat* const floatTarget; // the same one, or null
};
} // namespace Zn::Parameters
