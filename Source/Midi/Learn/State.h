#pragma once

#include "Midi/Learn/Handler.h"
#include "Midi/Learn/LearnerRecord.h"

#include <memory>
#include <vector>

namespace Zn::Midi::Learn
{
constexpr int maxEntries = 128; // of a table

/** In the order in which they act. */
using Handlers = std::vector<std::shared_ptr<Handler>>;

/** The learn table as one frame of a ring. The frames share the handlers, so that none dies in the audio
    thread's hands: the writer releases a frame's old handlers when it fills it anew.
*/
struct State
{
    LearnerRecord* learner = nullptr; // null as if idle; outlives the ring
    Handlers handlers;
};
} // namespace Zn::Midi::Learn
