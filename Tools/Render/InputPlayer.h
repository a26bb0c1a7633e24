#pragma once

#include "EventStream.h"
#include "HeldKeys.h"
#include "MidiFileSource.h"
#include "SongTimeline.h"

namespace Zn::Render
{
/** Plays the file to the processor: gives each block the events that fall into it.

    With a loop the events inside it are played on every pass until the file's own length is over. Whatever is
    still down when the loop wraps, or when the file is over, is released there.
*/
class InputPlayer
{
public:
    /** Both must outlive the player. */
    InputPlayer (const MidiFileSource&, const SongTimeline&);

    /** Blocks must follow each other without a gap. */
    void addEvents (juce::MidiBuffer&, std::int64_t firstSample, int numSamples);

private:
    struct Step // what comes next
    {
        std::int64_t sample = 0;
        const SongEvent* event = nullptr; // null: the pass ends
    };

    Step findNextStep() const;
    Step endOfPass() const;
    void play (const SongEvent&, juce::MidiBuffer&, int sample);
    void startNextPass();

    const SongTimeline& timeline;
    EventStream events;
    EventStream eventsAtLoopStart;
    std::int64_t endSample; // of the input with a loop
    std::int64_t pass = 0;
    HeldKeys held;
    std::vector<std::uint8_t> message; // reused
    bool finished = false;
};
} // namespace Zn::Render
