#include "Midi/NoteGate.h"

#include <utility>

namespace Zn::Midi
{
namespace
{
bool endsAllNotes (const Event& event) noexcept
{
    return isController (event, allNotesOffController) || isController (event, allSoundOffController);
}
} // namespace

NoteGate::NoteGate()
{
    prepare();
}

void NoteGate::prepare()
{
    output.ensureSize (reservedBufferBytes);
}

void NoteGate::process (juce::MidiBuffer& buffer, bool shouldBeOpen, bool keepNotes) noexcept
{
    EventWriter out (output);
    out.clear();

    if (std::exchange (open, shouldBeOpen) != shouldBeOpen)
    {
        if (open && keepNotes)
            sounding = {};
        else
            endAll (out, 0);
    }

    for (const auto event : buffer)
    {
        if (endsAllNotes (event))
        {
            endAll (out, event.samplePosition);
            continue;
        }

        follow (event);
        out.add (event);
    }

    output.swapWith (buffer);
}

void NoteGate::follow (const Event& event) noexcept
{
    if (isNote (event))
        sounding[static_cast<std::size_t> (channelOf (event) - 1)]
                [static_cast<std::size_t> (noteOf (event))] = isNoteOn (event);
}

void NoteGate::endAll (EventWriter& out, int sample) noexcept
{
    for (std::size_t channel = 0; channel < numChannels; ++channel)
        for (std::size_t note = 0; note < numNotes; ++note)
            if (std::exchange (sounding[channel][note], std::uint8_t { 0 }) != 0)
                out.add (ShortMessage::noteOff (static_cast<int> (channel) + 1, static_cast<int> (note)),
                         sample);
}
} // namespace Zn::Midi
