#include "Render/SongTimeline.h"

#include <gtest/gtest.h>

using namespace Zn::Render;

namespace
{
const TempoMap threeTempi { { { 4.0, 60.0 }, { 0.0, 120.0 }, { 6.0, 240.0 } } };

SongTimeline looped (double start, double end)
{
    return { threeTempi, {}, 100.0, 48000.0, Loop { start, end } };
}
} // namespace

TEST (TempoMap, AddsUpTheStretchesBetweenTempi)
{
    EXPECT_DOUBLE_EQ (threeTempi.secondsFromQuarters (4.0), 2.0);
    EXPECT_DOUBLE_EQ (threeTempi.secondsFromQuarters (6.0), 4.0);
    EXPECT_DOUBLE_EQ (threeTempi.secondsFromQuarters (8.0), 4.5);
    EXPECT_DOUBLE_EQ (threeTempi.bpmAt (3.999), 120.0);
    EXPECT_DOUBLE_EQ (threeTempi.bpmAt (4.0), 60.0);

    EXPECT_DOUBLE_EQ (TempoMap ({ { 2.0, 60.0 } }).bpmAt (1.0), 120.0) << "before the first change";
    EXPECT_DOUBLE_EQ (TempoMap ({ { 0.0, 60.0 }, { 0.0, 90.0 } }).bpmAt (0.0), 90.0) << "the last one counts";
}

TEST (TempoMap, ComesBackFromSeconds)
{
    for (auto quarters = 0.0; quarters < 12.0; quarters += 0.173)
        EXPECT_NEAR (threeTempi.quartersFromSeconds (threeTempi.secondsFromQuarters (quarters)),
                     quarters,
                     1.0e-12);
}

TEST (MeterMap, FindsTheBarLineBeforeAPosition)
{
    const MeterMap meters ({ { 8.0, 3, 4 }, { 14.0, 6, 8 }, { 15.0, 2, 2 } });

    const std::pair<double, double> rows[] { { 0.0, 0.0 },    { 3.999, 0.0 }, { 4.0, 4.0 },
                                             { 7.5, 4.0 },    { 8.0, 8.0 },   { 10.99, 8.0 },
                                             { 11.0, 11.0 },  { 14.5, 14.0 }, { 15.0, 15.0 },
                                             { 18.99, 15.0 }, { 19.0, 19.0 }, { 11.0 - 1.0e-12, 11.0 } };

    for (const auto& [position, barStart] : rows)
        EXPECT_DOUBLE_EQ (meters.barStartAt (position), barStart) << position;
}

TEST (SongTimeline, PlacesAPositionOnTheLastSampleThatIsNotBehindIt)
{
    const auto timeline = looped (3.0, 7.1);

    for (std::int64_t pass = 0; pass < 40; ++pass)
        for (auto quarters = pass == 0 ? 0.0 : 3.0; quarters < 7.1; quarters += 0.0625)
        {
            const auto elapsed = timeline.elapsedQuartersAt (pass, quarters);
            const auto sample = timeline.sampleAt (pass, quarters);

            EXPECT_LE (timeline.pointAt (sample).elapsedQuarters, elapsed + 1.0e-8)
                << pass << " " << quarters;
            EXPECT_GT (timeline.pointAt (sample + 1).elapsedQuarters, elapsed) << pass << " " << quarters;
        }
}

TEST (SongTimeline, WrapsInTimeButNeverGoesBackInWhatHasElapsed)
{
    const auto timeline = looped (3.0, 7.0); // 0.5 s, 2 s and 0.25 s of it in three tempi
    const auto wrap = timeline.sampleAt (0, 7.0);

    EXPECT_EQ (wrap, static_cast<std::int64_t> (4.25 * 48000.0));
    EXPECT_DOUBLE_EQ (timeline.pointAt (wrap).quarters, 3.0);
    EXPECT_NEAR (timeline.pointAt (wrap + 24000).quarters, 4.0, 1.0e-9);
    EXPECT_NEAR (timeline.pointAt (wrap + 24000).elapsedQuarters, 8.0, 1.0e-9);

    auto last = -1.0;

    for (std::int64_t sample = 0; sample < 48000 * 20; sample += 37)
    {
        const auto point = timeline.pointAt (sample);
        EXPECT_GT (point.elapsedQuarters, last);
        EXPECT_LT (point.quarters, 7.0);
        last = point.elapsedQuarters;
    }
}
