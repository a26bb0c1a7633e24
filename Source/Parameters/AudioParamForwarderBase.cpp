#include "Parameters/AudioParamForwarderBase.h"

namespace Zn::Parameters
{
AudioParamForwarderBase::AudioParamForwarderBase (juce::AudioProcessorParameter& targetToUse,
                                                  juce::AudioProcessorParameter* hostSideToUse)
    : ForwarderBase (targetToUse), hostSide (hostSideToUse)
{
    getTarget().addListener (this);
}

AudioParamForwarderBase::~AudioParamForwarderBase()
{
    AudioParamForwarderBase::
        endGesture(); // or the host would wait for ever when an editor closes in mid-drag
    getTarget().removeListener (this);
}

MenuItems::Item AudioParamForwarderBase::getMenuChoices()
{
    if (auto* number = dynamic_cast<juce::AudioParameterInt*> (&getTarget()))
        return getMenuChoicesFor (*number, hostSide);

    return ForwarderBase::getMenuChoices();
}

void AudioParamForwarderBase::beginGesture()
{
    if (! gesture.exchange (true))
        if (auto* host = gestureParameterOf (getTarget(), hostSide))
            host->beginChangeGesture();
}

void AudioParamForwarderBase::endGesture()
{
    if (gesture.exchange (false))
        if (auto* host = gestureParameterOf (getTarget(), hostSide))
            host->endChangeGesture();
}

void AudioParamForwarderBase::parameterValueChanged (int, float)
{
    changed = true;
}

void AudioParamForwarderBase::parameterGestureChanged (int, bool) {}
} // namespace Zn::Parameters
