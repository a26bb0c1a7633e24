#include "Sequencer/SwingParam.h"

#include "Parameters/ParameterText.h"

namespace Zn::Sequencer
{
SwingParam::SwingParam (const juce::ParameterID& identifier, const juce::String& displayName)
    : AudioParameterInt (
        identifier, displayName, minimum, maximum, 0, Parameters::wholeNumbers (minimum, maximum, "%"))
{}
} // namespace Zn::Sequencer
