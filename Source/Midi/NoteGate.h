#pragma once

#include "Midi/SoundingNotes.h"

namespace Zn::Midi
{
/** Ends every note it has let through when it closes, so that switching a source off leaves nothing hanging.

    Closing flushes but does not block: what comes after a close still passes. The note-offs of a flush stand
    before every other event of sample 0, so that a key pressed there is not killed. A gate sees its own
    source only: what else passes it would be flushed with it. Starts closed. Thread: audio.
*/
class NoteGate
{
public:
    NoteGate();

    NoteGate (const NoteGate&) = delete;
    NoteGate& operator= (const NoteGate&) = delete;

    /** Passes the buffer's events, and expands controllers 120 and 123 to note-offs of all that sounds.

        Closing flushes. Opening forgets what sounds with keepNotes, and flushes without: that is for a gate
        whose source is exchanged by opening it, where the notes of the source before would hang.
    */
    void process (juce::MidiBuffer& buffer, bool open, bool keepNotes) noexcept;

    bool isOpen() const noexcept { return open; }

    /** Ends all that sounds, at one sample, without closing. */
    void endAll (EventWriter& out, int sample) noexcept { sounding.endAll (out, sample); }

    /** Reserves memory again where swaps have handed it away. Thread: prepare. */
    void prepare();

private:
    bool open = false;
    SoundingNotes sounding;
    juce::MidiBuffer output;
};
} // namespace Zn::Midi
