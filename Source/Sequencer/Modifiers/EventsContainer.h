#pragma once

#include "Sequencer/Modifiers/TimedSteps.h"

namespace Zn::Sequencer::Modifiers
{
/** A loop of several lanes, each repeated until the loop is full.

    A change of a bar reaches every lane: each beat of a bar owns one sequence, which lasts as long as the beat.
*/
class EventsContainer : public Cloneable<Base, EventsContainer>
{
public:
    bool fitLoop = false;                           // kept with the loop, without effect; not saved
    std::vector<std::unique_ptr<TimedSteps>> lanes; // none is null
    MusicalTime loopTime;                           // its listener is taken

    EventsContainer();
    EventsContainer (const EventsContainer& other);
    EventsContainer& operator= (const EventsContainer& other);

    /** Adds to what the target holds what starts inside the loop, uncut, and sets the length. With any lane soloed the
        others are left out. Nothing is sorted.
    */
    void render (RenderedEvents& target) const override;

private:
    /** Keys `Sequences` for the lanes, and `LoopTime`. Broadcasts a change after loading. */
    void reflectFields (Reflector& r) override;

    void followLoopTime();
    void changeBar (int index, Bar oldBar, Bar newBar);
};
} // namespace Zn::Sequencer::Modifiers
