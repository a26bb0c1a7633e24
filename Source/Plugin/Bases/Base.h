#pragma once

#include "Plugin/Bases/SharedBase.h"

#include <memory>

namespace Zn::Audio::Plugin
{
/** Owns the state, one object on the heap that lives as long as the processor, and lists its parameters to the host.
*/
template <typename StateType>
class Base : public SharedBase
{
public:
    Base() : state (std::make_unique<StateType>())
    {
        state->params.forwardTo (hostParameters);
        hostParameters.addTo (*this);
    }

    StateType& getState() noexcept { return *state; }

protected:
    const std::unique_ptr<StateType> state;
};
} // namespace Zn::Audio::Plugin
