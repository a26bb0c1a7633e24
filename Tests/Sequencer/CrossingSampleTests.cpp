#include "Sequencer/CrossingSample.h"

#include <gtest/gtest.h>
#include <juce_core/juce_core.h>

#include <algorithm>
#include <vector>

namespace Zn::Sequencer
{
TEST (CrossingSample, IsTheLastSampleNotAboveThePositionOrElseTheRunsLast)
{
    struct Row
    {
        std::vector<double> positions;
        double x;
        int expected;
    };

    const std::vector<double> rising { 0.0, 0.125, 0.25, 0.375 }, standing { 0.5, 0.5, 0.5 };
    const std::vector<double> falling { 3.75, 3.875, 2.0, 2.125 };

    const Row rows[] = { { rising, 0.0, 0 },    { rising, 0.1, 0 },   { rising, 0.125, 1 },
                         { rising, 0.3, 2 },    { rising, 0.375, 3 }, { rising, 0.5, 3 },
                         { rising, -0.1, 3 },   { standing, 0.5, 0 }, { standing, 0.6, 2 },
                         { { 1.0 }, 1.0, 0 },   { { 1.0 }, 9.0, 0 },  { falling, 3.8, 0 },
                         { falling, 3.875, 1 }, { falling, 2.0, 2 },  { falling, 2.1, 2 },
                         { falling, 3.0, 3 } };

    for (const auto& row : rows)
        EXPECT_EQ (crossingSample (row.positions, row.x), row.expected) << "x = " << row.x;
}

TEST (CrossingSample, IsFoundByHalvingWherePositionsNeverFall)
{
    juce::Random random (7);

    for (auto round = 0; round < 2000; ++round)
    {
        std::vector<double> positions (static_cast<std::size_t> (1 + random.nextInt (9)));
        auto position = static_cast<double> (random.nextInt (3));

        for (auto& p : positions)
            p = position += 0.5 * random.nextInt (3); // small steps on a coarse grid: many are equal

        for (auto x = -1.0; x < position + 2.0; x += 0.25)
            ASSERT_EQ (crossingSampleOfRising (positions, x), crossingSample (positions, x))
                << "round " << round << ", x = " << x;
    }
}
} // namespace Zn::Sequencer
