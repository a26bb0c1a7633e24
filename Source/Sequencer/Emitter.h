#pragma once

#include "Sequencer/RenderedEvents.h"

namespace Zn::Sequencer
{
/** What makes a source of notes recognisable in a rendered list, and its place visible to the editor.

    A copy is another source, so it has a record of its own, and assigning leaves the record alone: both
    follow from the rule that a record belongs to one place in a tree of modifiers. Thread: message.
*/
class Emitter
{
public:
    Emitter();
    Emitter (const Emitter&) : Emitter() {}
    Emitter& operator= (const Emitter&) { return *this; }

    const std::shared_ptr<PlayPosition>& getPosition() const noexcept { return position; }

    /** Marks a rendered stretch of time, in quarter notes from its start, as this one's. */
    void mark (RenderedEvents& events, double length) const;

private:
    std::shared_ptr<PlayPosition> position; // never null
};
} // namespace Zn::Sequencer
