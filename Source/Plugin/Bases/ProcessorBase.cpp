#include "Plugin/Bases/ProcessorBase.h"

namespace Zn::Audio
{
ProcessorBase::ProcessorBase (Role role) : AudioProcessor (busesOf (role)), ownRole (role) {}

juce::AudioProcessor::BusesProperties ProcessorBase::busesOf (Role role)
{
    if (role == Role::midiEffect)
        return {};

    return BusesProperties()
        .withInput ("Input", juce::AudioChannelSet::stereo())
        .withOutput ("Output", juce::AudioChannelSet::stereo());
}

bool ProcessorBase::isBusesLayoutSupported (const BusesLayout& layout) const
{
    if (isMidiEffect())
        return true;

    const auto isStereo = [] (const juce::AudioChannelSet& channels) { return channels.size() == 2; };

    if (layout.outputBuses.size() != 1 || layout.inputBuses.size() > 1)
        return false;

    return isStereo (layout.outputBuses.getReference (0))
           && (layout.inputBuses.isEmpty() || isStereo (layout.inputBuses.getReference (0)));
}
} // namespace Zn::Audio
