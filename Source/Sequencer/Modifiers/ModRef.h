#pragma once

#include "Sequencer/Modifiers/Base.h"

namespace Zn::Sequencer::Modifiers
{
/** Stands for a modifier that lives elsewhere and outlives it. A clone stands for the same one. */
class ModRef : public Base
{
public:
    explicit ModRef (Base& targetToUse) noexcept : target (&targetToUse) {}

    std::unique_ptr<Base> clone() const override;
    void render (RenderedEvents& events) const override;

private:
    void reflectFields (Reflector& r) override;

    Base* target; // not owned, never null
};
} // namespace Zn::Sequencer::Modifiers
