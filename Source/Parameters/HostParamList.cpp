#include "Parameters/HostParamList.h"

namespace Zn::Audio
{
void HostParamList::forward (const juce::String& hostIdentifier, ParamHolderBase& target)
{
    auto hostSide =
        std::make_unique<ParamHolder<ForwardingParameter>> (hostIdentifier,
                                                            target,
                                                            managed,
                                                            hostIdentifier.replaceCharacter ('-', ' '));

    addParam (*hostSide);
    entries.push_back ({ std::move (hostSide), &target });
}

ParamHolderBase* HostParamList::find (const juce::String& hostIdentifier) const noexcept
{
    for (const auto& [hostSide, target] : entries)
        if (hostSide->getIdentifier() == hostIdentifier)
            return target;

    return nullptr;
}

void HostParamList::addTo (juce::AudioProcessor& processor)
{
    for (auto& [hostSide, target] : entries)
    {
        processor.addParameter (hostSide->handOver().release());
        target->setHostSide (hostSide->getParameter());
    }
}
} // namespace Zn::Audio
