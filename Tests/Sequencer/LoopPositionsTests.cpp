#include "Sequencer/LoopPositions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace Zn::Sequencer
{
TEST (LoopPositions, AreExactlyTheRemaindersOfTheSongPositions)
{
    for (auto length : { 0.001, 0.0625, 1.0 / 3.0, 1.03, 4.0, 1000.0 })
        for (auto step : { 4.1666667e-05, 0.0086718751, 0.125, 0.7 })
            for (auto start : { -2.0, -0.0001, 0.0, 0.3, 3.99, 1234.567, 1.0e9 })
            {
                std::vector<double> wrapped (600);

                for (std::size_t i = 0; i < wrapped.size(); ++i)
                    wrapped[i] = start + static_cast<double> (i) * step;

                const auto song = wrapped;
                wrapToLoop (wrapped, length);

                for (std::size_t i = 0; i < song.size(); ++i)
                    ASSERT_EQ (wrapped[i], std::fmod (song[i], length))
                        << song[i] << " in " << length << ", sample " << i;
            }
}

TEST (LoopPositions, FollowAClockThatStandsOrFallsBack)
{
    std::vector<double> positions { 5.5, 5.5, 5.75, 4.0, 4.25, 9.5, -1.25, 0.0 };
    wrapToLoop (positions, 2.0);

    EXPECT_EQ (positions, (std::vector<double> { 1.5, 1.5, 1.75, 0.0, 0.25, 1.5, -1.25, 0.0 }));
}
} // namespace Zn::Sequencer
