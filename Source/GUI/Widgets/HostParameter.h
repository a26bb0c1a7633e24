#pragma once

#include "Parameters/Parameter.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::GUI
{
/** The parameter that the host knows a widget's value by; null where the host does not know it. Its identifier is what
    controllers are learned for. Thread: message.
*/
const juce::AudioProcessorParameterWithID* hostParameterOf (const Parameters::Parameter& parameter);
} // namespace Zn::GUI
