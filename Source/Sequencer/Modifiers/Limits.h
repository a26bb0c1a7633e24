#pragma once

#include <cstddef>

namespace Zn::Sequencer::Modifiers
{
// How many elements a list takes from a file. The surplus is ignored.

constexpr int maxNotes = 4096;     // notes of a list, steps of a pattern
constexpr int maxClips = 1024;     // clips of a pattern
constexpr int maxSequences = 1024; // sequences of a lane, lanes of a container

// How far lanes are repeated. A longer loop stays empty from there on.

constexpr int maxRepeats = 4096;               // of one lane
constexpr std::size_t maxRepeated = 1u << 20u; // elements of all lanes together
} // namespace Zn::Sequencer::Modifiers
