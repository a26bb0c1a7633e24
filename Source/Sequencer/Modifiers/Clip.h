#pragma once

#include "Sequencer/Modifiers/Base.h"

namespace Zn::Sequencer::Modifiers
{
/** A window on another modifier: plays what starts inside the window, from the window's start on. */
class Clip : public Cloneable<Base, Clip>
{
public:
    bool active = true; // false: plays nothing; not saved
    Ranges::Span time;  // the window, in quarter notes of the child; empty for the whole child

    Clip();
    Clip (const Clip& other);
    Clip& operator= (const Clip& other);

    const Base& getChild() const noexcept { return *child; }
    void setChild (std::unique_ptr<Base> newChild);

    /** The target keeps its length when the window has none and the child sets none. */
    void render (RenderedEvents& target) const override;

private:
    /** Keys `Time`, and the name of the child's type for the child. A file that names no known type leaves
        the child as it is; of several the first registered one counts.
    */
    void reflectFields (Reflector& r) override;

    std::unique_ptr<Base> child; // never null
};
} // namespace Zn::Sequencer::Modifiers
