#include "Parameters/CreateForwarder.h"

#include "Parameters/AudioChoiceForwarder.h"

namespace Zn::Parameters
{
std::unique_ptr<Parameter> createForwarder (Audio::ParamHolderBase& holder)
{
    auto& target = holder.getParameter();

    if (auto* choice = dynamic_cast<juce::AudioParameterChoice*> (&target))
        return std::make_unique<AudioChoiceForwarder> (*choice, holder.getHostSide());

    return std::make_unique<AudioParamForwarderBase> (target, holder.getHostSide());
}
} // namespace Zn::Parameters
