#include "Midi/HeldNotes.h"

namespace Zn::Midi
{
bool HeldNotes::follow (const Event& note, bool keyMode) noexcept
{
    const auto isPressed = isNoteOn (note);

    if (isPressed)
        add (noteOf (note));
    else
        remove (noteOf (note));

    return keyMode || isPressed || isEmpty();
}
} // namespace Zn::Midi
