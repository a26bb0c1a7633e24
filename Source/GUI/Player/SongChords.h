#pragma once

#include "Sequencer/MidiPlayer/Song.h"

#include <juce_core/juce_core.h>

#include <vector>

namespace Zn::GUI
{
/** What sounds for a while in a MIDI file. */
struct SongChord
{
    Ranges::Span time; // quarter notes
    juce::String name;
};

/** The chords of a song one after the other, without rests. Of one with too many changes to be shown, what each bar,
    or each few bars, holds together. `middleC` is the octave that note 60 stands in. Thread: any.
*/
std::vector<SongChord> chordsOf (const Sequencer::MidiPlayer::Song& song, int middleC);
} // namespace Zn::GUI
