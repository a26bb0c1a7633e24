#include "Hosts/JackTempoMap.h"

#include <cmath>
#include <cstdint>

namespace Zn::Test
{
namespace
{
constexpr auto secondsPerMinute = 60.0;
constexpr auto beatsPerBar = 4;
constexpr auto ticksPerBeat = 1920;
} // namespace

double JackTempoMap::quartersAt (double otherFrame, double sampleRate) const noexcept
{
    return quarters + (otherFrame - frame) * tempo / (secondsPerMinute * sampleRate);
}

double JackTempoMap::frameOf (double otherQuarters, double sampleRate) const noexcept
{
    return frame + (otherQuarters - quarters) * secondsPerMinute * sampleRate / tempo;
}

void JackTempoMap::fillInBars (jack_position_t& position, double sampleRate) const noexcept
{
    const auto place = quartersAt (static_cast<double> (position.frame), sampleRate);
    const auto beats = std::floor (place);
    const auto bars = std::floor (beats / beatsPerBar);

    position.valid = JackPositionBBT;
    position.bar = static_cast<std::int32_t> (bars) + 1;
    position.beat = static_cast<std::int32_t> (beats - bars * beatsPerBar) + 1;
    position.tick = static_cast<std::int32_t> ((place - beats) * ticksPerBeat);
    position.bar_start_tick = bars * beatsPerBar * ticksPerBeat;
    position.beats_per_bar = beatsPerBar;
    position.beat_type = 4;
    position.ticks_per_beat = ticksPerBeat;
    position.beats_per_minute = tempo;
}
} // namespace Zn::Test
