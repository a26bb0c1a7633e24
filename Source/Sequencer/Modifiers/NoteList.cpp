#include "Sequencer/Modifiers/NoteList.h"

#include "Sequencer/Modifiers/Limits.h"
#include "Sequencer/Modifiers/RenderedLists.h"

namespace Zn::Sequencer::Modifiers
{
void NoteList::render (RenderedEvents& target) const
{
    target.notes = notes;
    target.start = 0.0;
    target.length = time.length();

    clipToSpan (target, { 0.0, target.length });
    emitter.mark (target, target.length);
}

void NoteList::reflectFields (Reflector& r)
{
    r.addChild ("Time", time);
    r.addChild ("Events", ChildContainerSerializer (notes, false, maxNotes));
}
} // namespace Zn::Sequencer::Modifiers
