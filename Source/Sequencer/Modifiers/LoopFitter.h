#pragma once

#include "Sequencer/Emitter.h"
#include "Sequencer/Modifiers/EventsContainer.h"

namespace Zn::Sequencer::Modifiers
{
/** A loop of lanes that is marked as one whole and sorted, as a clip plays it. */
class LoopFitter : public Cloneable<Base, LoopFitter>
{
public:
    static constexpr auto typeName = "LoopFitter";

    EventsContainer events;

    /** Adds to what the target holds, then sorts all of it and sets its length. */
    void render (RenderedEvents& target) const override;

private:
    void reflectFields (Reflector& r) override;

    Emitter emitter;
};
} // namespace Zn::Sequencer::Modifiers
