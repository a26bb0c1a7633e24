#pragma once

#include <span>

namespace Zn::Audio
{
/** What the stealer has to know of a voice that plays. */
struct StealCandidate
{
    int initialNote = 0;     // MIDI note
    bool isReleased = false; // its key is up and nothing holds it
    bool isKeyDown = true;
};

/** Chooses which voice a new note takes when all are in use: one that is as little missed as possible, and neither the
    lowest nor the highest held note, which carry the chord.
*/
struct DefaultVoiceStealer
{
    /** The index of the voice to take. Candidates are ordered oldest first; there is at least one. Thread: audio. */
    static int choose (std::span<const StealCandidate> candidates, int newNote) noexcept;
};
} // namespace Zn::Audio
