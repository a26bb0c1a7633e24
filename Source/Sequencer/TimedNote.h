#pragma once

#include "Sequencer/NoteEvent.h"
#include "Sequencer/Span.h"

namespace Zn::Sequencer
{
/** A note at its place: a step of a drawn pattern, or an element of a rendered list. */
struct TimedNote
{
    Ranges::Span time;
    NoteEvent event;
    bool enabled = false; // a disabled note is kept but does not sound

    /** Keys `enabled`, `Time`, `Event`, and `Play` {`chance`, `spreadLow`, `spreadHigh`}, which is written
        only when one of its three differs from its default. Loading sets the three to their defaults first, so
        that a list that is read in place never keeps another note's chance.
    */
    void reflect (Reflector& r);

    bool operator== (const TimedNote&) const = default;
};
} // namespace Zn::Sequencer
