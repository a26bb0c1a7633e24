#include "Parameters/ManagedParameters.h"

#include <algorithm>

namespace Zn::Audio
{
ManagedParameters::Handle ManagedParameters::manage (ParamHolderBase& holder)
{
    if (! holder.isHandedOver())
        return parameters.emplace_back (holder.handOver());

    const auto found = std::find_if (parameters.begin(), parameters.end(), [&holder] (const Handle& handle) {
        return handle.get() == &holder.getParameter();
    });

    return found != parameters.end() ? *found : nullptr;
}
} // namespace Zn::Audio
