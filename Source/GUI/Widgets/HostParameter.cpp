#include "GUI/Widgets/HostParameter.h"

#include "Parameters/AudioParamForwarderBase.h"
#include "Parameters/Connector.h"

namespace Zn::GUI
{
const juce::AudioProcessorParameterWithID* hostParameterOf (const Parameters::Parameter& parameter)
{
    if (const auto* connector = dynamic_cast<const Parameters::Connector*> (&parameter))
        return hostParameterOf (*connector->getTarget());

    const auto* forwarder = dynamic_cast<const Parameters::AudioParamForwarderBase*> (&parameter);

    if (forwarder == nullptr)
        return nullptr;

    const auto* known = Parameters::gestureParameterOf (forwarder->getTarget(), forwarder->getHostSide());
    return dynamic_cast<const juce::AudioProcessorParameterWithID*> (known);
}
} // namespace Zn::GUI
