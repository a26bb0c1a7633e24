#pragma once

#include "Midi/SoundingNotes.h"

namespace Zn::Midi
{
/** Remembers which notes and sustain pedals a stream has left down, on each channel, so that whoever breaks it off can
    end them. Thread: audio.
*/
class LooseEnds
{
public:
    void follow (const juce::MidiBuffer& stream) noexcept;

    /** Ends the notes and lifts the pedals, at one sample and each on its channel. */
    void end (EventWriter& out, int sample) noexcept;

private:
    SoundingNotes notes;
    std::bitset<16> pedals; // by channel, set where it is down
};
} // namespace Zn::Midi
