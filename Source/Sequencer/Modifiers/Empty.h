#pragma once

#include "Sequencer/Modifiers/Base.h"

namespace Zn::Sequencer::Modifiers
{
/** Plays nothing: the child of a clip before it is given one. */
class Empty : public Cloneable<Base, Empty>
{
public:
    void render (RenderedEvents&) const override {}

private:
    void reflectFields (Reflector&) override {}
};
} // namespace Zn::Sequencer::Modifiers
