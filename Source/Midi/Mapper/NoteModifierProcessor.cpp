#include "Midi/Mapper/NoteModifierProcessor.h"

namespace Zn::Midi::Mapper
{
namespace
{
constexpr auto maxNote = 127;
constexpr auto velocityFromByte = 0.007874016f; // 1 / 127
} // namespace

NoteModifierProcessor::NoteModifierProcessor()
{
    active.reserve (maxNote + 1);
    prepare();
}

void NoteModifierProcessor::prepare()
{
    output.ensureSize (reservedBufferBytes);
}

void NoteModifierProcessor::process (juce::MidiBuffer& buffer) noexcept
{
    EventWriter out (output);
    out.clear();

    if (std::exchange (dirty, false))
        restartAll (out);

    for (const auto event : buffer)
    {
        if (! isNote (event))
            out.add (event);
        else if (isNoteOn (event))
            start (event, out);
        else
            end (noteOf (event), event.samplePosition, out);
    }

    output.swapWith (buffer);
}

void NoteModifierProcessor::restartAll (EventWriter& out) noexcept
{
    for (const auto& record : active)
        out.add (record.noteOff(), 0);

    for (auto& record : active)
    {
        record.outputNote = mapped (record.inputNote);
        out.add (record.noteOn(), 0);
    }
}

void NoteModifierProcessor::start (const Event& noteOn, EventWriter& out) noexcept
{
    const auto note = noteOf (noteOn);
    end (note, noteOn.samplePosition, out);

    active.push_back ({ note,
                        mapped (note),
                        static_cast<float> (velocityOf (noteOn)) * velocityFromByte,
                        channelOf (noteOn) });
    out.add (active.back().noteOn(), noteOn.samplePosition);
}

void NoteModifierProcessor::end (int inputNote, int sample, EventWriter& out) noexcept
{
    const auto found = std::find_if (active.begin(), active.end(), [inputNote] (const Record& record) {
        return record.inputNote == inputNote;
    });

    if (found == active.end())
        return;

    out.add (found->noteOff(), sample);
    active.erase (found);
}

int NoteModifierProcessor::mapped (int note) const noexcept
{
    return std::clamp (map (note), 0, maxNote);
}

ShortMessage NoteModifierProcessor::Record::noteOn() const noexcept
{
    return ShortMessage::noteOn (channel, outputNote, juce::roundToInt (velocity * 127.0f));
}

ShortMessage NoteModifierProcessor::Record::noteOff() const noexcept
{
    return ShortMessage::noteOff (channel, outputNote, juce::roundToInt (velocity * 127.0f));
}
} // namespace Zn::Midi::Mapper
