#include "Plugin/Vornel/KeySource.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
void append (juce::MidiBuffer& target, const juce::MidiBuffer& source) noexcept
{
    Midi::EventWriter writer (target);

    for (const auto event : source)
        writer.add (event);
}
} // namespace

void KeySource::prepare (int blockSize)
{
    player.prepare (blockSize);
    liveGate.prepare();
    playerGate.prepare();
    fileNotes.ensureSize (Midi::reservedBufferBytes);
}

void KeySource::process (juce::MidiBuffer& events,
                         const Sequencer::ClockSlice& clock,
                         bool playsFile) noexcept
{
    fileNotes.clear();

    if (playsFile && clock.isPlaying)
        takeFile (events, clock);
    else
        takeKeys (events, clock);
}

void KeySource::takeFile (juce::MidiBuffer& events, const Sequencer::ClockSlice& clock) noexcept
{
    for (const auto event : events)
        if (Midi::isController (event, Midi::allNotesOffController)) // a panic: the host's goes around us
            Midi::EventWriter (fileNotes).add (event);

    events.clear();

    // The pedal goes with the keys: its lift would never come, and it would hold one chord over the next.
    if (liveGate.isOpen())
        Midi::EventWriter (events).add (Midi::ShortMessage { { 0xB0, Midi::sustainController, 0 } }, 0);

    liveGate.process (events, false, true);

    player.run (clock, fileNotes);
    playerGate.process (fileNotes, true, true);
    append (events, fileNotes);
}

void KeySource::takeKeys (juce::MidiBuffer& events, const Sequencer::ClockSlice& clock) noexcept
{
    player.rest (clock);
    playerGate.process (fileNotes, false, true);
    liveGate.process (events, true, true);

    if (fileNotes.isEmpty())
        return;

    append (fileNotes, events);
    events.swapWith (fileNotes);
}
} // namespace Zn::Audio::Plugins::Vornel
