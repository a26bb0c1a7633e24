#pragma once

#include "Foundation/Events/GarbageCollector.h"
#include "Foundation/Events/RefCountBase.h"

#include <memory>
#include <utility>

namespace Zn::Events
{
/** The collector's own reference to a shared object, so that the audio thread never drops the last one.

    Objects that the audio thread may hold are made by `RefCountedHolder<T>::create (arguments...)` and used
    as a plain std::shared_ptr<T>. When all others have let go, the collector frees the object on its own
    thread: its destructor must not need the message thread.
*/
template <typename T>
class RefCountedHolder : public RefCountBase
{
public:
    /** Thread: any but audio. */
    template <typename... Args>
    static std::shared_ptr<T> create (Args&&... args)
    {
        auto object = std::make_shared<T> (std::forward<Args> (args)...);
        GarbageCollector::getInstance().add (std::make_unique<RefCountedHolder> (object));
        return object;
    }

    explicit RefCountedHolder (std::shared_ptr<T> objectToHold) : object (std::move (objectToHold)) {}

    long getRefCount() const noexcept override { return object.use_count(); }

private:
    const std::shared_ptr<T> object;
};
} // namespace Zn::Events
