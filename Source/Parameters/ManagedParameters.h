#pragma once

#include "Parameters/ParamHolder.h"

#include <memory>
#include <vector>

namespace Zn::Audio
{
/** Owns the parameters that the host sees only through a ForwardingParameter, so that they are not automatable
    themselves. A plug-in has one.

    Ownership is shared with the forwarders: a host destroys those last, and they still name their targets then.
    Thread: message.
*/
class ManagedParameters
{
public:
    using Handle = std::shared_ptr<juce::AudioProcessorParameter>;

    /** Takes over a holder's parameter, unless it is here already. Null when someone else has it. */
    Handle manage (ParamHolderBase& holder);

    std::size_t size() const noexcept { return parameters.size(); }

private:
    std::vector<Handle> parameters;
};
} // namespace Zn::Audio
