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
            sounding.forget();
        else
            sounding.endAll (out, 0);
    }

    for (const auto event : buffer)
    {
        if (endsAllNotes (event))
        {
            sounding.endAll (out, event.samplePosition);
            continue;
        }

        sounding.follow (event);
        out.add (event);
    }

    output.swapWith (buffer);
}
} // namespace Zn::Midi
