#pragma once

#include "Midi/Messages.h"
#include "Midi/NoteList.h"

namespace Zn::Midi
{
/** The keys that are held at the arpeggiator's input, in the order in which they were pressed. Thread: audio.
*/
class HeldNotes : public NoteList
{
public:
    using NoteList::NoteList;

    /** Follows a note-on or note-off, and tells whether the pitch table has to be rebuilt.

        In key mode every note does that. Otherwise lifting one key of a chord does not, so that a pattern
        keeps its pitches while the hand moves on; only a new key or the lift of the last one does.
    */
    [[nodiscard]] bool follow (const Event& note, bool keyMode) noexcept;
};
} // namespace Zn::Midi
