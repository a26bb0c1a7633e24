#include "Sequencer/Modifiers/TimedClip.h"

#include "Sequencer/Modifiers/RenderedLists.h"

namespace Zn::Sequencer::Modifiers
{
void TimedClip::render (RenderedEvents& target) const
{
    RenderedEvents rendered;
    clip.render (rendered);

    clipToSpan (rendered, { 0.0, time.length });
    shift (rendered, time.start);
    append (target, std::move (rendered));
}

void TimedClip::reflectFields (Reflector& r)
{
    r.addChild ("Time", time);
    r.addChild ("Clip", clip);
}
} // namespace Zn::Sequencer::Modifiers
