#pragma once

#include "Parameters/ManagedParameters.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <atomic>

namespace Zn::Audio
{
/** What the host sees of a parameter: an identifier and a name of its own, and for everything else the target's
    answers. Either side may be set from any thread; each learns of the other's change once.

    JUCE's format clients take a stable identifier from AudioProcessorParameterWithID only; they would number any other
    parameter, and a project would break when one is inserted.

    The host reads back exactly the value that was last set, as long as the target still has it: through a curved
    range and back a value could differ in its last digit, and a project would not be saved as it was loaded.
*/
class ForwardingParameter : public juce::AudioProcessorParameterWithID,
                            private juce::AudioProcessorParameter::Listener
{
public:
    /** The holder yields the target. A target that the processor does not know itself is given to the managed
        list. Without a name of its own it takes the target's.
    */
    ForwardingParameter (const juce::ParameterID& identifierToUse,
                         ParamHolderBase& targetHolder,
                         ManagedParameters& managed,
                         const juce::String& nameToUse = {});
    ~ForwardingParameter() override;

    juce::AudioProcessorParameter& getTarget() const noexcept { return target; }

    juce::String getName (int maximumLength) const override;
    float getValue() const override;
    void setValue (float normalised) override;
    float getDefaultValue() const override { return target.getDefaultValue(); }
    juce::String getLabel() const override { return target.getLabel(); }
    int getNumSteps() const override { return target.getNumSteps(); }
    bool isDiscrete() const override { return target.isDiscrete(); }
    bool isBoolean() const override { return target.isBoolean(); }
    juce::String getText (float normalised, int maximumLength) const override;
    float getValueForText (const juce::String& text) const override { return target.getValueForText (text); }
    bool isOrientationInverted() const override { return target.isOrientationInverted(); }
    bool isAutomatable() const override { return target.isAutomatable(); }
    bool isMetaParameter() const override { return target.isMetaParameter(); }
    Category getCategory() const override { return target.getCategory(); }
    juce::String getCurrentValueAsText() const override { return target.getCurrentValueAsText(); }
    juce::StringArray getAllValueStrings() const override { return target.getAllValueStrings(); }

private:
    void parameterValueChanged (int index, float normalised) override;
    void parameterGestureChanged (int index, bool isStarting) override;

    std::optional<float> legal (float normalised) const noexcept;
    bool targetHas (float legalNormalised) const noexcept;

    juce::AudioProcessorParameter& target;
    const juce::RangedAudioParameter* const rangedTarget; // the same one, or null
    const ManagedParameters::Handle owned;                // keeps the target when the managed list is gone
    std::atomic<float> lastSent; // what both sides were last told; written: any thread that sets either
};
} // namespace Zn::Audio
