#pragma once

#include "Midi/EventWriter.h"
#include "Midi/RowToPitchTable.h"

namespace Zn::Midi
{
/** Turns the rows that a pattern plays into the pitches that a table gives them.

    It remembers which row made which pitch sound: a row's end finds its pitches again after the table has
    changed, and a pitch that a second row strikes is ended and struck again, never doubled. A row without a
    pitch stays silent. Thread: audio.
*/
class RowExpander
{
public:
    /** Writes what a buffer of rows means, each event `offset` samples later. Other messages pass. */
    void process (const juce::MidiBuffer& rows,
                  const RowToPitchTable& table,
                  EventWriter& pitches,
                  int offset = 0) noexcept;

    /** Forgets what sounds, for whoever has ended it: the rows that go on end nothing more. */
    void forget() noexcept { numSounding = 0; }

private:
    struct Pair
    {
        int row = 0, pitch = 0;
    };

    /** Where an event goes, and on which channel. */
    struct Target
    {
        EventWriter& out;
        int channel, sample;

        void noteOn (int pitch, int velocity) const noexcept;
        void noteOff (int pitch) const noexcept;
    };

    void start (const Pair& pair, int velocity, const Target& target) noexcept;
    void end (int row, const Target& target) noexcept;
    bool removePitch (int pitch) noexcept;

    std::array<Pair, 128> sounding; // oldest first, those up to numSounding are in use; no pitch stands twice
    int numSounding = 0;
};
} // namespace Zn::Midi
