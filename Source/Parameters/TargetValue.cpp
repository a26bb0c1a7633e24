#include "Parameters/TargetValue.h"

#include "Parameters/ParameterText.h"

#include <cmath>

namespace Zn::Parameters
{
namespace
{
const juce::RangedAudioParameter* ranged (const juce::AudioProcessorParameter& target) noexcept
{
    return dynamic_cast<const juce::RangedAudioParameter*> (&target);
}

std::optional<float> limited (const juce::AudioProcessorParameter& target, float normalised) noexcept
{
    if (! std::isfinite (normalised))
        return {};

    if (target.isBoolean())
        return normalised > 0.5f ? 1.0f : 0.0f;

    return juce::jlimit (0.0f, 1.0f, normalised);
}
} // namespace

std::optional<float> legalNormalised (const juce::RangedAudioParameter& target, float normalised) noexcept
{
    const auto value = limited (target, normalised);
    const auto hasSteps = target.getNormalisableRange().interval > 0.0f;

    return value.has_value() && hasSteps ? target.convertTo0to1 (target.convertFrom0to1 (*value)) : value;
}

std::optional<float> legalNormalised (const juce::AudioProcessorParameter& target, float normalised) noexcept
{
    if (const auto* withRange = ranged (target))
        return legalNormalised (*withRange, normalised);

    return limited (target, normalised);
}

float plainValueOf (const juce::AudioProcessorParameter& target) noexcept
{
    // The typed readers give the stored value; going through 0..1 and back would lose its last digits.
    if (const auto* number = dynamic_cast<const juce::AudioParameterFloat*> (&target))
        return number->get();

    if (const auto* withRange = ranged (target))
        return withRange->convertFrom0to1 (withRange->getValue());

    return target.getValue();
}

void setPlainValue (juce::AudioProcessorParameter& target, double value)
{
    if (! std::isfinite (value))
        return;

    const auto* withRange = ranged (target);

    if (withRange == nullptr)
    {
        setNormalised (target, static_cast<float> (juce::jlimit (0.0, 1.0, value)));
        return;
    }

    const auto range = withRange->getNormalisableRange().getRange();
    const auto inRange = juce::jlimit (double (range.getStart()), double (range.getEnd()), value);
    setNormalised (target, withRange->convertTo0to1 (static_cast<float> (inRange)));
}

void setWholeNumber (juce::AudioProcessorParameter& target, int value)
{
    const auto* number = dynamic_cast<const juce::AudioParameterInt*> (&target);

    if (number == nullptr || number->get() != value)
        setPlainValue (target, double (value));
}

void setNormalised (juce::AudioProcessorParameter& target, float normalised)
{
    if (const auto legal = legalNormalised (target, normalised))
        target.setValueNotifyingHost (*legal);
}

juce::String textOf (const juce::AudioProcessorParameter& target, float normalised)
{
    return target.getText (legalNormalised (target, normalised).value_or (0.0f), maxTextLength);
}

juce::String currentTextOf (const juce::AudioProcessorParameter& target)
{
    return textOf (target, target.getValue());
}

void setFromText (juce::AudioProcessorParameter& target, const juce::String& text)
{
    setNormalised (target, target.getValueForText (text));
}

juce::AudioProcessorParameter* gestureParameterOf (juce::AudioProcessorParameter& target,
                                                   juce::AudioProcessorParameter* hostSide) noexcept
{
    for (auto* candidate : { hostSide, &target })
        if (candidate != nullptr && candidate->getParameterIndex() >= 0)
            return candidate;

    return nullptr;
}
} // namespace Zn::Parameters
