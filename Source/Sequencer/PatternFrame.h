#pragma once

#include "Sequencer/LiveSlots.h"
#include "Sequencer/PatternData.h"
#include "Sequencer/PlayHead.h"

#include <memory>

namespace Zn::Sequencer
{
/** What one frame of the pattern ring holds. Any handle may be null before the first publication. */
struct PatternFrame
{
    std::shared_ptr<const PatternData> patterns;
    std::shared_ptr<LiveSlots> liveSlots;
    std::shared_ptr<PlayHead> playHead;
};
} // namespace Zn::Sequencer
