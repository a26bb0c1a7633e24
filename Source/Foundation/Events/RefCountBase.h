#pragma once

namespace Zn::Events
{
/** What the collector knows of a shared object: how many hold it, the collector included. */
class RefCountBase
{
public:
    virtual ~RefCountBase() = default;

    virtual long getRefCount() const noexcept = 0;
};
} // namespace Zn::Events
