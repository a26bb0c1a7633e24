#include "Parameters/ForwardingParameter.h"

#include "Parameters/TargetValue.h"

namespace Zn::Audio
{
ForwardingParameter::ForwardingParameter (const juce::ParameterID& identifierToUse,
                                          ParamHolderBase& targetHolder,
                                          ManagedParameters& managed,
                                          const juce::String& nameToUse)
    : AudioProcessorParameterWithID (identifierToUse, nameToUse)
    , target (targetHolder.getParameter())
    , rangedTarget (dynamic_cast<const juce::RangedAudioParameter*> (&target))
    , owned (target.getParameterIndex() < 0 ? managed.manage (targetHolder) : nullptr)
    , lastSent (target.getValue())
{
    target.addListener (this);
}

ForwardingParameter::~ForwardingParameter()
{
    target.removeListener (this);
}

juce::String ForwardingParameter::getName (int maximumLength) const
{
    return name.isEmpty() ? target.getName (maximumLength) : name.substring (0, maximumLength);
}

float ForwardingParameter::getValue() const
{
    const auto sent = lastSent.load();
    return targetHas (sent) ? sent : target.getValue();
}

void ForwardingParameter::setValue (float normalised)
{
    const auto value = legal (normalised);

    if (! value.has_value())
        return;

    lastSent = *value;

    if (! targetHas (*value))
        target.setValueNotifyingHost (*value);
}

juce::String ForwardingParameter::getText (float normalised, int maximumLength) const
{
    return target.getText (legal (normalised).value_or (0.0f), maximumLength);
}

void ForwardingParameter::parameterValueChanged (int, float normalised)
{
    // What this side has just set comes back here with the same value. A flag instead of the value could swallow
    // a change that another thread makes at the same moment.
    if (const auto value = legal (normalised); value.has_value() && lastSent.exchange (*value) != *value)
        setValueNotifyingHost (*value);
}

void ForwardingParameter::parameterGestureChanged (int, bool isStarting)
{
    if (getParameterIndex() < 0)
        return;

    if (isStarting)
        beginChangeGesture();
    else
        endChangeGesture();
}

std::optional<float> ForwardingParameter::legal (float normalised) const noexcept
{
    return rangedTarget != nullptr ? Parameters::legalNormalised (*rangedTarget, normalised)
                                   : Parameters::legalNormalised (target, normalised);
}

bool ForwardingParameter::targetHas (float value) const noexcept
{
    const auto asRead =
        rangedTarget != nullptr ? rangedTarget->convertTo0to1 (rangedTarget->convertFrom0to1 (value)) : value;

    return target.getValue() == asRead;
}
} // namespace Zn::Audio
