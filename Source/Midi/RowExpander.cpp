#include "Midi/RowExpander.h"

namespace Zn::Midi
{
void RowExpander::process (const juce::MidiBuffer& rows,
                           const RowToPitchTable& table,
                           EventWriter& pitches,
                           int offset) noexcept
{
    for (const auto event : rows)
    {
        const auto sample = event.samplePosition + offset;
        const Target target { pitches, channelOf (event), sample };

        if (! isNote (event))
            pitches.add (event, sample);
        else if (isNoteOn (event))
            for (const auto pitch : table.pitchesOf (noteOf (event)))
                start ({ noteOf (event), pitch }, velocityOf (event), target);
        else
            end (noteOf (event), target);
    }
}

void RowExpander::start (const Pair& pair, int velocity, const Target& target) noexcept
{
    if (removePitch (pair.pitch))
        target.noteOff (pair.pitch);

    // There is room: no pitch stands twice, and there are as many places as pitches.
    sounding[static_cast<std::size_t> (numSounding++)] = pair;
    target.noteOn (pair.pitch, velocity);
}

void RowExpander::end (int row, const Target& target) noexcept
{
    const auto first = sounding.begin(), last = first + numSounding;
    const auto isOfRow = [row] (const Pair& pair) { return pair.row == row; };

    std::for_each (first, last, [&] (const Pair& pair) {
        if (isOfRow (pair))
            target.noteOff (pair.pitch);
    });

    numSounding = static_cast<int> (std::remove_if (first, last, isOfRow) - first);
}

bool RowExpander::removePitch (int pitch) noexcept
{
    const auto first = sounding.begin(), last = first + numSounding;
    const auto newLast =
        std::remove_if (first, last, [pitch] (const Pair& pair) { return pair.pitch == pitch; });

    numSounding = static_cast<int> (newLast - first);
    return newLast != last;
}

void RowExpander::Target::noteOn (int pitch, int velocity) const noexcept
{
    out.add (ShortMessage::noteOn (channel, pitch, velocity), sample);
}

void RowExpander::Target::noteOff (int pitch) const noexcept
{
    out.add (ShortMessage::noteOff (channel, pitch), sample);
}
} // namespace Zn::Midi
