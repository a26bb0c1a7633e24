#include "Sequencer/Modifiers/LoopFitter.h"

#include "Sequencer/Modifiers/RenderedLists.h"

namespace Zn::Sequencer::Modifiers
{
void LoopFitter::render (RenderedEvents& target) const
{
    events.render (target);
    emitter.mark (target, target.length);
    sortByStart (target);
}

void LoopFitter::reflectFields (Reflector& r)
{
    r.addChild ("Events", events);
}
} // namespace Zn::Sequencer::Modifiers
