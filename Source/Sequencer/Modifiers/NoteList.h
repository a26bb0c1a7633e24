#pragma once

#include "Sequencer/Emitter.h"
#include "Sequencer/Modifiers/Base.h"
#include "Sequencer/MusicalTime.h"

namespace Zn::Sequencer::Modifiers
{
/** Notes at fixed places, in quarter notes, over a number of bars. */
class NoteList : public Cloneable<Base, NoteList>
{
public:
    static constexpr auto typeName = "NoteList";

    MusicalTime time;
    std::vector<TimedNote> notes;

    /** Replaces the notes of the target and sets its length. */
    void render (RenderedEvents& target) const override;

private:
    void reflectFields (Reflector& r) override;

    Emitter emitter;
};
} // namespace Zn::Sequencer::Modifiers
