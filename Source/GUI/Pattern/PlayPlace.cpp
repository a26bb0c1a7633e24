#include "GUI/Pattern/PlayPlace.h"

#include <algorithm>

namespace Zn::GUI
{
std::optional<PlayPlace> PlayPlace::of (Audio::Plugins::Vornel::State& state)
{
    if (! state.playHead->isPlaying.load())
        return std::nullopt;

    const auto heard = std::clamp (state.liveSlots->heard.load(), 0, Sequencer::numSlots - 1);
    const auto& slot = state.patterns.getSlots()[static_cast<std::size_t> (heard)];
    const auto quarters = slot.pattern.getEmitter().getPosition()->position.load();
    const auto length = slot.length();

    if (quarters < 0.0 || ! (length > 0.0))
        return std::nullopt;

    return PlayPlace { heard, std::min (quarters / length, 1.0) };
}
} // namespace Zn::GUI
