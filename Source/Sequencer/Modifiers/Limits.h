#pragma once

namespace Zn::Sequencer::Modifiers
{
// How many elements a list takes from a file. The surplus is ignored.

constexpr int maxNotes = 4096;     // notes of a list, steps of a pattern
constexpr int maxClips = 1024;     // clips of a pattern
constexpr int maxSequences = 1024; // sequences of a lane, lanes of a container
} // namespace Zn::Sequencer::Modifiers
