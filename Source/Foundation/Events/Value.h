#pragma once

#include "Foundation/Events/HasBroadcaster.h"

#include <utility>

namespace Zn::Events
{
/** A value that tells its listeners when it becomes another one. */
template <typename T>
class Value : public HasBroadcaster
{
public:
    Value() = default;
    explicit Value (T initial) : value (std::move (initial)) {}

    const T& get() const noexcept { return value; }

    void set (T newValue)
    {
        if (value == newValue)
            return;

        value = std::move (newValue);
        callListeners();
    }

private:
    T value {};
};
} // namespace Zn::Events
