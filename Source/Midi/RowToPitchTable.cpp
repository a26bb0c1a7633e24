#include "Midi/RowToPitchTable.h"

namespace Zn::Midi
{
namespace
{
constexpr int octave = 12;

constexpr int roundUpToOctaves (int semitones) noexcept
{
    return (semitones + octave - 1) / octave * octave;
}

/** Moves a pitch into the limits: by octaves where an octave has room, else to the nearer end. */
constexpr int limited (int pitch, PitchLimits limits) noexcept
{
    if (limits.high - limits.low < octave)
        return std::clamp (pitch, limits.low, std::max (limits.low, limits.high));

    if (pitch < limits.low)
        return pitch + roundUpToOctaves (limits.low - pitch);

    const auto highest = limits.high - 1;
    return pitch > highest ? pitch - roundUpToOctaves (pitch - highest) : pitch;
}

static_assert (limited (59, { 60, 72 }) == 71 && limited (72, { 60, 72 }) == 60
               && limited (71, { 60, 72 }) == 71);

constexpr int floorOfQuotient (int dividend, int divisor) noexcept
{
    return dividend >= 0 ? dividend / divisor : -((divisor - 1 - dividend) / divisor);
}

static_assert (floorOfQuotient (-1, 3) == -1 && floorOfQuotient (-3, 3) == -1
               && floorOfQuotient (-4, 3) == -2);
} // namespace

RowToPitchTable::Row& RowToPitchTable::Row::operator= (const Row& other) noexcept
{
    std::copy_n (other.pitches.begin(), other.count, pitches.begin());
    count = other.count;
    return *this;
}

bool RowToPitchTable::Row::operator== (const Row& other) const noexcept
{
    const auto mine = inUse(), others = other.inUse();
    return std::equal (mine.begin(), mine.end(), others.begin(), others.end());
}

void RowToPitchTable::Row::addOnce (int pitch) noexcept
{
    const auto present = inUse();

    if (count < maxPitchesPerRow && std::find (present.begin(), present.end(), pitch) == present.end())
        pitches[static_cast<std::size_t> (count++)] = pitch;
}

RowToPitchTable RowToPitchTable::from (const NoteList& heldNotes, PitchLimits limits)
{
    RowToPitchTable table;
    table.rebuild (heldNotes, limits);
    return table;
}

void RowToPitchTable::rebuild (const NoteList& newHeldNotes, PitchLimits newLimits) noexcept
{
    heldNotes = newHeldNotes.sorted();
    limits = newLimits;

    for (auto& row : rows)
        row.count = 0;

    if (heldNotes.isEmpty())
        return;

    const auto numHeld = heldNotes.size();
    auto octaves = floorOfQuotient (-rowOfLowestNote, numHeld);
    auto index = -rowOfLowestNote - octaves * numHeld;

    for (auto& row : rows)
    {
        const auto pitch = limited (heldNotes[index] + octave * octaves, limits);

        if (pitch >= 0 && pitch < 128)
            row.addOnce (pitch);

        if (++index == numHeld)
        {
            index = 0;
            ++octaves;
        }
    }
}

std::span<const int> RowToPitchTable::pitchesOf (int row) const noexcept
{
    if (row < 0 || row >= numRows)
        return {};

    return rows[static_cast<std::size_t> (row)].inUse();
}
} // namespace Zn::Midi
