#pragma once

#include "Sequencer/CellSet.h"
#include "Sequencer/FiredMarks.h"

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Sequencer
{
/** Where a run of the engine writes what it plays: note messages that name rows, and the marks
    it passed. Thread: audio.
*/
struct PatternOutput
{
    juce::MidiBuffer& rows;
    FiredMarks& firedMarks;
    int offset = 0; // samples, added to every sample of the run

    /** The same output for a part that begins some samples later. */
    PatternOutput from (int sample) const noexcept { return { rows, firedMarks, offset + sample }; }

    void noteOn (Cell cell, int velocity, int sample) const noexcept { add (0x90, cell, velocity, sample); }
    void noteOff (Cell cell, int sample) const noexcept { add (0x80, cell, 0, sample); }

    void markFired (const PlayPosition& emitter, int sample, double position) const noexcept
    {
        firedMarks.add ({ &emitter, offset + sample, position });
    }

private:
    void add (int status, Cell cell, int velocity, int sample) const noexcept
    {
        const auto byte = [] (int value) { return static_cast<juce::uint8> (value); };
        const juce::uint8 message[] = { byte (status + cell.channel), byte (cell.row), byte (velocity) };

        rows.addEvent (message, static_cast<int> (std::size (message)), offset + sample);
    }
};
} // namespace Zn::Sequencer
