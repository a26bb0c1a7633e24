#include "Sequencer/Modifiers/Pattern.h"

#include "Sequencer/Modifiers/Limits.h"
#include "Sequencer/Modifiers/RenderedLists.h"

namespace Zn::Sequencer::Modifiers
{
void Pattern::render (RenderedEvents& target) const
{
    for (const auto& clip : clips)
        clip.render (target);

    target.start = 0.0;
    target.length = time.length();

    emitter.mark (target, target.length);
    sortByStart (target);
    clipToSpan (target, { 0.0, target.length });
}

void Pattern::reflectFields (Reflector& r)
{
    r.addChild ("Clips", ChildContainerSerializer (clips, false, maxClips));
    r.addChild ("Time", time);
}
} // namespace Zn::Sequencer::Modifiers
