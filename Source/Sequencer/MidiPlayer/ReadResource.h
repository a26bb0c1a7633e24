#pragma once

#include "Sequencer/MidiPlayer/Resource.h"
#include "Sequencer/MidiPlayer/Song.h"

#include <juce_core/juce_core.h>

namespace Zn::Sequencer::MidiPlayer
{
/** What a resource names; null if there is none, or if it is no MIDI file that can be played. Thread: message. */
std::shared_ptr<const Song> readSong (const Resource& resource);

/** One of the files that are part of the program, by its name. */
Resource embedded (const juce::String& name);

/** A file on disk. What lies among the temporary files, as a drag out of another program leaves it there, is taken
    into the project, since it will not be there any more tomorrow.
*/
Resource resourceOf (const juce::File& file);
} // namespace Zn::Sequencer::MidiPlayer
