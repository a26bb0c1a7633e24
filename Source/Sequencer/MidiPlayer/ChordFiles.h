#pragma once

#include "Foundation/Binaries.h"

#include <juce_core/juce_core.h>

namespace Zn::Sequencer::MidiPlayer
{
/** The names of the MIDI files that are part of the program, in the order in which they are offered. Thread: any. */
const juce::StringArray& chordFileNames();

/** The content of one of them; empty for any other name. Thread: any. */
Binaries::Bytes chordFile (const juce::String& name);
} // namespace Zn::Sequencer::MidiPlayer
