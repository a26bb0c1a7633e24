#pragma once

#include "Parameters/ForwardingParameter.h"
#include "Parameters/ParamList.h"

#include <memory>
#include <vector>

namespace Zn::Audio
{
/** The parameters that a host lists and automates, in its order, each standing for one of the tree.

    Order and identifiers are what a host's projects refer to: new ones go to the end, none is ever renamed.
    Thread: message, while the processor is constructed.
*/
class HostParamList : public ParamList
{
public:
    explicit HostParamList (ManagedParameters& managedToUse) : managed (managedToUse) {}

    /** Appends a parameter under a host identifier such as "Filter-Cutoff", which the host shows as
        "Filter Cutoff".
    */
    void forward (const juce::String& hostIdentifier, ParamHolderBase& target);

    /** The parameter of the tree that the host knows by an identifier; null when there is none. */
    ParamHolderBase* find (const juce::String& hostIdentifier) const noexcept;

    /** Gives all of them to the processor, once. */
    void addTo (juce::AudioProcessor& processor);

private:
    struct Entry
    {
        std::unique_ptr<ParamHolder<ForwardingParameter>> hostSide;
        ParamHolderBase* target;
    };

    ManagedParameters& managed;
    std::vector<Entry> entries;
};
} // namespace Zn::Audio
