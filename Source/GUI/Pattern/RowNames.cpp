#include "GUI/Pattern/RowNames.h"

#include "GUI/Widgets/ValueText.h"

namespace Zn::GUI
{
namespace
{
constexpr auto octave = 12;
constexpr auto lowestKey = Midi::RowToPitchTable::rowOfLowestNote;

/** "Key 1", and the others by how many rows they are away from it. */
RowName nameOfPlace (int row)
{
    const auto distance = row - lowestKey;

    if (distance == 0)
        return { .text = "Key 1", .isLowest = true };

    const auto sign = distance > 0 ? juce::String ("+") : juce::String::fromUTF8 ("\xe2\x88\x92"); // minus
    return { .text = sign + juce::String (std::abs (distance)) };
}

RowName nameOfPitch (int row, const Midi::RowToPitchTable& table, int middleC)
{
    const auto& held = table.getHeldNotes();
    const auto numHeld = held.size();
    const auto distance = row - lowestKey;
    const auto cycle = distance >= 0 ? distance / numHeld : -((numHeld - 1 - distance) / numHeld);
    const auto place = distance - cycle * numHeld;
    const auto ownPitch = held[place] + cycle * octave;
    const auto pitches = table.pitchesOf (row);

    return { .text = pitches.empty() ? juce::String() : pitchName (pitches.front(), middleC),
             .isLowest = numHeld > 1 ? place == 0 : distance == 0, // of one key each row is the lowest
             .isHeld = cycle == 0,
             .isMoved = ! pitches.empty() && pitches.front() != ownPitch };
}
} // namespace

RowNames RowNames::from (const Midi::RowToPitchTable& table, int middleC)
{
    RowNames names;
    names.heldKeys = table.getHeldNotes();

    for (auto row = 0; row < Midi::RowToPitchTable::numRows; ++row)
        names.rows[static_cast<std::size_t> (row)] =
            names.heldKeys.isEmpty() ? nameOfPlace (row) : nameOfPitch (row, table, middleC);

    return names;
}
} // namespace Zn::GUI
