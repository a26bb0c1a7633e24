#include "Presets/Screen.h"

namespace Zn::Presets
{
namespace
{
struct ReflectedSize
{
    Screen::Size size;

    void reflect (Reflector& r)
    {
        r.add ("width", size.width);
        r.add ("height", size.height);
    }
};
} // namespace

Screen::Size Screen::getSize() const
{
    const std::scoped_lock guard (lock);
    return size;
}

void Screen::setSize (Size newSize)
{
    const std::scoped_lock guard (lock);
    size = newSize;
}

float Screen::getScale() const
{
    const std::scoped_lock guard (lock);
    return scale;
}

void Screen::setScale (float newScale)
{
    const std::scoped_lock guard (lock);
    scale = newScale;
}

void Screen::reflect (Reflector& r)
{
    ReflectedSize reflected { getSize() };
    r.addChild ("Dimensions", reflected);

    if (r.isLoading())
        setSize (reflected.size);
}
} // namespace Zn::Presets
