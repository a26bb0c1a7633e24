#pragma once

#include "Sequencer/RenderedEvents.h"

#include <array>

namespace Zn::Sequencer
{
constexpr int numSlots = 8;

/** One slot as the audio thread plays it. Its three lists are sorted by start. */
struct RenderedSlot
{
    bool playing = true;     // false: silent
    bool looping = true;     // false: plays once after its anchor
    double playLength = 0.0; // quarter notes; a looping slot repeats after it
    RenderedEvents events;
};

/** All eight patterns, rendered. Built on the message thread, constant once it is
    published; the collector frees it.
*/
struct PatternData
{
    std::array<RenderedSlot, numSlots> slots;
};
} // namespace Zn::Sequencer
