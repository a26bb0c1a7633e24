#include "Sequencer/Modifiers/ModRef.h"

namespace Zn::Sequencer::Modifiers
{
std::unique_ptr<Base> ModRef::clone() const
{
    return std::make_unique<ModRef> (*this);
}

void ModRef::render (RenderedEvents& events) const
{
    target->render (events);
}

void ModRef::reflectFields (Reflector& r)
{
    target->reflect (r);
}
} // namespace Zn::Sequencer::Modifiers
