#pragma once

#include "Midi/NoteList.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** What a musician calls the keys that are held, such as "Am7" or "C/E". The root is the lowest key where that has a
    name, else the one with the plainest name. "3 keys" for what has none, the key's own name ("A2") for a single one,
    and nothing for none.

    `middleC` is the octave that note 60 stands in. Thread: any.
*/
juce::String chordName (const Midi::NoteList& keys, int middleC);
} // namespace Zn::GUI
