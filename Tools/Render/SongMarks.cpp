#include "SongMarks.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace Zn::Render
{
namespace
{
constexpr double microsecondsPerMinute = 60.0e6;
constexpr double longestTempo = 0xffffff; // microseconds a quarter, what three bytes hold

std::vector<std::uint8_t> tempoBytes (double bpm)
{
    const auto micros =
        static_cast<std::uint32_t> (std::clamp (std::round (microsecondsPerMinute / bpm), 1.0, longestTempo));

    return { 0xff,
             0x51,
             3,
             static_cast<std::uint8_t> (micros >> 16),
             static_cast<std::uint8_t> (micros >> 8),
             static_cast<std::uint8_t> (micros) };
}

std::vector<std::uint8_t> meterBytes (const MeterChange& meter)
{
    constexpr std::uint8_t clocksPerClick = 24, thirtySecondsPerQuarter = 8;
    const auto exponent = std::countr_zero (static_cast<unsigned int> (meter.denominator));

    return { 0xff,
             0x58,
             4,
             static_cast<std::uint8_t> (meter.numerator),
             static_cast<std::uint8_t> (exponent),
             clocksPerClick,
             thirtySecondsPerQuarter };
}
} // namespace

SongMarks::SongMarks (const SongTimeline& timelineToUse) : timeline (timelineToUse)
{
    collectPass();
}

void SongMarks::pop()
{
    if (++next < marks.size() || ! timeline.getLoop())
        return;

    ++pass;
    collectPass();
}

void SongMarks::collectPass()
{
    const auto& loop = timeline.getLoop();
    const auto start = pass > 0 ? loop->startQuarters : 0.0;
    const auto end = loop ? loop->endQuarters : std::numeric_limits<double>::infinity();

    marks.clear();
    next = 0;

    const auto add = [&] (double quarters, std::vector<std::uint8_t> bytes) {
        if (quarters < end)
            marks.push_back (
                { timeline.elapsedQuartersAt (pass, std::max (quarters, start)), std::move (bytes) });
    };

    add (start, meterBytes (timeline.getMeterMap().meterAt (start)));
    add (start, tempoBytes (timeline.getTempoMap().bpmAt (start)));

    for (const auto& meter : timeline.getMeterMap().getChanges())
        if (meter.quarters > start)
            add (meter.quarters, meterBytes (meter));

    for (const auto& tempo : timeline.getTempoMap().getChanges())
        if (tempo.quarters > start)
            add (tempo.quarters, tempoBytes (tempo.bpm));

    std::ranges::stable_sort (marks, {}, &Mark::elapsedQuarters);
}
} // namespace Zn::Render
