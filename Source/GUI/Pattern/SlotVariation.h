#pragma once

#include "Sequencer/TimedNote.h"

#include <cstdint>
#include <vector>

namespace Zn::GUI
{
/** Gives notes other rows and leaves when and how they play. The rows in use change places, so that what repeats still
    repeats and chords stay chords; a drawing in a single row spreads over its neighbours. The same seed gives the same
    rows.
*/
void varyRows (std::vector<Sequencer::TimedNote>& notes, std::uint32_t seed);
} // namespace Zn::GUI
