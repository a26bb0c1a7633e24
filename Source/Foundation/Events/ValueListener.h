#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "Foundation/Events/Listener.h"
#include "Foundation/Events/Value.h"

#include <functional>
#include <utility>

namespace Zn::Events
{
namespace ValueListenerDetails
{
/** Looks again at a value whenever the object that holds it reports a change. */
class Base
{
public:
    explicit Base (HasBroadcaster& source) : listener (source, [this] { check(); }) {}
    virtual ~Base() = default;

    Base (const Base&) = delete;
    Base& operator= (const Base&) = delete;

    /** Calls back if the value is another than last time. */
    virtual void check() = 0;

private:
    Events::Listener listener;
};

/** Calls a function with a value when it has become another one, though the object that holds it reports
    changes of other things as well. Does not call for the value it starts with. Thread: that of the source.
*/
template <typename T>
class Listener : public Base
{
public:
    using Getter = std::function<T()>;
    using Callback = std::function<void (const T&)>;

    Listener (HasBroadcaster& source, Getter getterToUse, Callback callbackToUse)
        : Base (source)
        , getter (std::move (getterToUse))
        , callback (std::move (callbackToUse))
        , last (getter())
    {}

    Listener (Value<T>& source, Callback callbackToUse)
        : Listener (
            source, [&source] { return source.get(); }, std::move (callbackToUse))
    {}

    void check() override
    {
        auto current = getter();

        if (current == last)
            return;

        last = current;
        callback (current); // its own copy: the function may destroy this listener
    }

private:
    Getter getter;
    Callback callback;
    T last;
};
} // namespace ValueListenerDetails

template <typename T>
using ValueListener = ValueListenerDetails::Listener<T>;
} // namespace Zn::Events
