#pragma once

#include "Midi/EventWriter.h"

#include <utility>
#include <vector>

namespace Zn::Midi::Mapper
{
/** Changes the notes of a stream and remembers what it made of each key, so that a key's end always names the
    note that its press made sound, whatever has changed in between.

    When the rule changes, all sounding notes are ended and started anew at sample 0. A key pressed twice is
    ended first. Note-offs without a press are dropped. Thread: audio.
*/
class NoteModifierProcessor
{
public:
    NoteModifierProcessor();
    virtual ~NoteModifierProcessor() = default;

    NoteModifierProcessor (const NoteModifierProcessor&) = delete;
    NoteModifierProcessor& operator= (const NoteModifierProcessor&) = delete;

    /** The note that sounds for a key; what lies outside 0..127 is limited. */
    virtual int map (int note) const noexcept = 0;

    void process (juce::MidiBuffer& buffer) noexcept;

    /** Reserves memory again where swaps have handed it away. Thread: prepare. */
    void prepare();

protected:
    /** Tells that map gives other answers from now on. */
    void markChanged() noexcept { dirty = true; }

private:
    struct Record
    {
        int inputNote = 0, outputNote = 0;
        float velocity = 0.0f; // 0..1
        int channel = 0;       // 1..16, 0 none

        ShortMessage noteOn() const noexcept;
        ShortMessage noteOff() const noexcept;
    };

    int mapped (int note) const noexcept;
    void restartAll (EventWriter& out) noexcept;
    void start (const Event& noteOn, EventWriter& out) noexcept;
    void end (int inputNote, int sample, EventWriter& out) noexcept;

    juce::MidiBuffer output;
    bool dirty = false;
    std::vector<Record> active; // in the order of pressing, one for each input note at most
};
} // namespace Zn::Midi::Mapper
