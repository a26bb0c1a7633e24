#pragma once

#include "Midi/NoteList.h"
#include "Midi/PitchLimits.h"

#include <span>

namespace Zn::Midi
{
/** Which pitches the rows of a drawn pattern play while some keys are held.

    Row 64 is the lowest held note; the rows above and below walk through the held notes, octave after octave.
    A limit of an octave or more moves a pitch by octaves until it is at least `low` and below `high`; a
    narrower one cuts it off at `low` and `high`. Without held notes all rows are empty.

    A value: two tables are equal when all rows, the held notes and the limits are. Copying takes what is in
    use and leaves the rest. At 66 KB it belongs into an object or a ring, not on the audio thread's stack.
    Thread: any.
*/
class RowToPitchTable
{
public:
    static constexpr int numRows = 128, maxPitchesPerRow = 128;
    static constexpr int rowOfLowestNote = 64;

    static RowToPitchTable from (const NoteList& heldNotes, PitchLimits limits);

    /** The same in place, at the cost of the rows in use. */
    void rebuild (const NoteList& heldNotes, PitchLimits limits) noexcept;

    /** The pitches of a row 0..127, each once; nothing for any other row. */
    std::span<const int> pitchesOf (int row) const noexcept;

    /** The held notes of the last rebuild, ascending. */
    const NoteList& getHeldNotes() const noexcept { return heldNotes; }

    /** The limits of the last rebuild, or those with which the table was published. */
    PitchLimits getLimits() const noexcept { return limits; }
    void setLimits (PitchLimits newLimits) noexcept { limits = newLimits; }

    bool operator== (const RowToPitchTable&) const = default;

private:
    struct Row
    {
        Row() = default;
        Row (const Row& other) noexcept { *this = other; }
        Row& operator= (const Row& other) noexcept;

        void addOnce (int pitch) noexcept;
        std::span<const int> inUse() const noexcept
        {
            return { pitches.data(), static_cast<std::size_t> (count) };
        }
        bool operator== (const Row& other) const noexcept;

        int count = 0;
        std::array<int, maxPitchesPerRow> pitches {}; // those up to count are in use
    };

    std::array<Row, numRows> rows;
    NoteList heldNotes; // ascending
    PitchLimits limits;
};
} // namespace Zn::Midi
