#pragma once

#include "Presets/Reflection/Reflector.h"

namespace Zn::Sequencer
{
/** What a drawn note plays, apart from when. */
struct NoteEvent
{
    float chance = 1.0f;     // 0 never to 1 always
    float spreadLow = 0.0f;  // -1..1, added to the velocity, see spreadHigh
    float spreadHigh = 0.0f; // -1..1, a random value between both is added, none if they are equal
    float velocity = 0.8f;   // 0..1, limited when it is played
    int noteNum = 36;        // row of the drawing, 0..127
    int channel = 1;         // 1..16

    /** Reads and writes `noteNum`, `velocity` and `channel` only; a step keeps the rest (TimedNote). A
        velocity may also come as text; text that is no number loads as 0.
    */
    void reflect (Reflector& r);

    bool operator== (const NoteEvent&) const = default;
};
} // namespace Zn::Sequencer
