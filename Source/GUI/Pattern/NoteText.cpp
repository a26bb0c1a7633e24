#include "GUI/Pattern/NoteText.h"

#include "GUI/Pattern/NoteValue.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
/** With two decimals where it is no whole number. */
juce::String columns (double length)
{
    constexpr auto hundred = 100.0;
    return juce::String (std::round (length * hundred) / hundred);
}

juce::StringArray placeParts (int row, double start, const RowNames& names, const RollBeats& beats)
{
    const auto isInDrawing =
        juce::isPositiveAndBelow (row, Midi::RowToPitchTable::numRows); // files may say others
    const auto pitch = names.heldKeys.isEmpty() || ! isInDrawing ? juce::String() : names.of (row).text;

    juce::StringArray parts { "Row " + juce::String (row - Midi::RowToPitchTable::rowOfLowestNote) };

    if (pitch.isNotEmpty())
        parts.add (pitch);

    parts.add ("beat " + beats.nameOf (start));
    return parts;
}
} // namespace

juce::String noteText (const Sequencer::TimedNote& note, const RowNames& names, const RollBeats& beats)
{
    auto parts = placeParts (note.event.noteNum, note.time.start, names, beats);
    parts.add ("length " + columns (note.time.length * beats.grid));
    parts.add ("velocity " + percentText (note.event.velocity));
    parts.add ("chance " + percentText (note.event.chance));

    if (! note.enabled)
        parts.add ("disabled");

    return parts.joinIntoString (", ");
}

juce::String placeText (int row, double start, const RowNames& names, const RollBeats& beats)
{
    return placeParts (row, start, names, beats).joinIntoString (", ") + ", empty";
}
} // namespace Zn::GUI
