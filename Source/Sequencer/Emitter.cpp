#include "Sequencer/Emitter.h"

#include "Foundation/Events/RefCountedHolder.h"

namespace Zn::Sequencer
{
Emitter::Emitter() : position (Events::RefCountedHolder<PlayPosition>::create()) {}

void Emitter::mark (RenderedEvents& events, double length) const
{
    events.sequences.push_back ({ { 0.0, length }, position, true });
}
} // namespace Zn::Sequencer
