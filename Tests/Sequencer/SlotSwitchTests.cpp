#include "Sequencer/SlotSwitch.h"

#include "Sequencer/PatternData.h"

#include <gtest/gtest.h>

#include <vector>

namespace Zn::Sequencer
{
namespace
{
constexpr double ppqPerSample = 0.125; // quarter notes

std::vector<double> positionsFrom (double ppq, int count)
{
    std::vector<double> result (static_cast<std::size_t> (count));

    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = ppq + static_cast<double> (i) * ppqPerSample;

    return result;
}
} // namespace

TEST (SlotSwitch, ComesWithTheFirstSampleOfTheNextCellOfTheGrid)
{
    struct Row
    {
        const char* what;
        double quantum, before, from;
        int sample;
        double anchor;
    };

    const Row rows[] = { { "inside the slice", 1.0, 0.25, 0.375, 5, 1.0 },
                         { "between two slices", 1.0, 0.875, 1.0, 0, 1.0 },
                         { "the host's loop wraps", 4.0, 7.9, 0.0, 0, 0.0 },
                         { "a hair short of the grid", 1.0, 0.25, 0.375 - 1.0e-12, 5, 1.0 },
                         { "a quantum that is none", 0.0, 0.25, 0.375, 5, 1.0 },
                         { "count-in", 1.0, -0.75, -0.625, 5, 0.0 } };

    for (const auto& row : rows)
    {
        LiveSlots live;
        SlotSwitch slots;
        live.quantum = row.quantum;

        const std::vector<double> before { row.before };
        slots.update ({ before, true, false, false }, live);

        live.pending = 3 + numSlots;
        const auto positions = positionsFrom (row.from, 8);
        const auto change = slots.update ({ positions, true, false, false }, live);

        ASSERT_TRUE (change) << row.what;
        EXPECT_EQ (change->slot, 3) << row.what;
        EXPECT_EQ (change->sample, row.sample) << row.what;
        EXPECT_EQ (change->anchor, row.anchor) << row.what;
        EXPECT_EQ (live.heard, 3) << row.what;
        EXPECT_EQ (live.switchPosition, -1.0) << row.what;
        EXPECT_EQ (live.switchedPosition, row.anchor) << row.what;
    }
}

TEST (SlotSwitch, TellsWhereTheChangeWillBeWhileItWaits)
{
    LiveSlots live;
    SlotSwitch slots;
    live.quantum = 4.0;
    live.pending = 2;

    const auto positions = positionsFrom (5.0, 8);
    EXPECT_FALSE (slots.update ({ positions, true, false, false }, live));
    EXPECT_EQ (live.pending, -1);
    EXPECT_EQ (live.index, 2);
    EXPECT_EQ (live.heard, 0);
    EXPECT_EQ (live.switchPosition, 8.0);

    live.pending = 0; // asked back
    EXPECT_FALSE (slots.update ({ positions, true, false, false }, live));
    EXPECT_EQ (live.switchPosition, -1.0);
}

TEST (SlotSwitch, DoesNotWaitWhileStoppedOrWithLiveChangesOff)
{
    for (auto isPlaying : { false, true })
    {
        LiveSlots live;
        SlotSwitch slots;
        live.enable = ! isPlaying;
        live.pending = 5;

        const std::vector<double> positions (8, 0.3);
        const auto change = slots.update ({ positions, isPlaying, false, false }, live);

        ASSERT_TRUE (change) << isPlaying;
        EXPECT_EQ (change->sample, 0) << isPlaying;
        EXPECT_EQ (change->anchor, 0.0) << isPlaying;
        EXPECT_EQ (live.heard, 5) << isPlaying;
        EXPECT_EQ (live.switchPosition, -1.0) << isPlaying;
    }
}

TEST (SlotSwitch, ThatWaitsComesAtOnceWhenTheTransportStops)
{
    LiveSlots live;
    SlotSwitch slots;
    live.pending = 1;

    const auto positions = positionsFrom (0.125, 4);
    EXPECT_FALSE (slots.update ({ positions, true, false, false }, live));

    const auto change = slots.update ({ positions, false, false, false }, live);
    ASSERT_TRUE (change);
    EXPECT_EQ (change->sample, 0);
}
} // namespace Zn::Sequencer
