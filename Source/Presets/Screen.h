#pragma once

#include "Foundation/Dimensions.h"
#include "Presets/Reflection/Reflector.h"

#include <cstdint>
#include <mutex>

namespace Zn::Presets
{
/** The editor's window, as a project keeps it. Hosts save projects on threads of their own, hence the lock. Thread:
    any but audio.
*/
class Screen
{
public:
    using Size = Dimensions<std::int32_t>; // pixels at a scale of 1; -1: never shown, so the editor's own

    virtual ~Screen() = default;

    Size getSize() const;
    void setSize (Size newSize);

    float getScale() const;
    void setScale (float newScale); // of the screen it is shown on; not saved

    void reflect (Reflector& r);

private:
    mutable std::mutex lock;
    Size size { -1, -1 };
    float scale = 1.0f;
};
} // namespace Zn::Presets
