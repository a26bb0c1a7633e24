#include "Sequencer/Swing.h"

#include <gtest/gtest.h>
#include <juce_core/juce_core.h>

#include <random>

namespace Zn::Sequencer
{
namespace
{
constexpr auto tolerance = 1.0e-8;

TEST (Swing, TakesItsCentreFromTheParameterAndIsHalvedInTheOuterZones)
{
    const std::pair<double, double> rows[] { { -200, 0.1005 }, { -160, 0.15 }, { -120, 0.2 }, { -40, 0.4 },
                                             { 0, 0.5 },       { 40, 0.6 },    { 100, 0.75 }, { 120, 0.8 },
                                             { 160, 0.85 },    { 200, 0.8995 } };

    for (const auto& [percent, centre] : rows)
        EXPECT_NEAR (SwingSettings::from ((percent + 200.0) / 400.0, 1).centre, centre, tolerance) << percent;

    EXPECT_EQ (SwingSettings::from (0.5, 1), SwingSettings {}) << "neutral to the last bit";
}

TEST (Swing, TakesItsCycleFromTheReferenceNote)
{
    const std::pair<int, double> rows[] { { 0, 0.5 }, { 1, 1.0 }, { 2, 2.0 }, { 3, 1.0 }, { -1, 1.0 } };

    for (const auto& [index, cycle] : rows)
        EXPECT_EQ (SwingSettings::from (0.5, index).cycle, cycle) << index;
}

TEST (Swing, MovesBothEndsOfANote)
{
    const SwingWarp swing ({ 0.6, 1.0 });

    const std::pair<Ranges::Span, Ranges::Span> rows[] { { { 0.25, 0.25 }, { 0.36, 0.24 } },
                                                         { { 0.75, 0.25 }, { 0.80895516, 0.19104484 } },
                                                         { { 0.9375, 0.125 }, { 0.95355071, 0.17604929 } },
                                                         { { 0.5, -0.25 }, { 0.6, 0.0 } } };

    for (const auto& [time, moved] : rows)
    {
        EXPECT_NEAR (swing.moved (time).start, moved.start, tolerance) << time.start;
        EXPECT_NEAR (swing.moved (time).length, moved.length, tolerance) << time.start;
    }
}

/** The mapping as a JUCE range words it, cycle by cycle. */
double warpedByRange (SwingSettings swing, double time)
{
    const auto base = std::floor (time / swing.cycle) * swing.cycle;
    const juce::NormalisableRange<double> range (base,
                                                 base + swing.cycle,
                                                 0.0001,
                                                 std::log (0.5) / std::log (swing.centre));

    return range.convertFrom0to1 (std::clamp ((time - base) / swing.cycle, 0.0, 1.0));
}

TEST (Swing, MovesAsASkewedRangeDoesAndNeverTurnsTimeBack)
{
    std::mt19937 random (1);
    std::uniform_real_distribution<double> amounts (0.0, 1.0), times (-8.0, 64.0);

    for (auto setting = 0; setting < 60; ++setting)
    {
        const auto settings = SwingSettings::from (amounts (random), setting % 3);
        const SwingWarp swing (settings);

        std::vector<double> sorted (100);
        std::generate (sorted.begin(), sorted.end(), [&] { return times (random); });
        std::sort (sorted.begin(), sorted.end());

        for (std::size_t i = 0; i < sorted.size(); ++i)
        {
            EXPECT_NEAR (swing.moved (sorted[i]), warpedByRange (settings, sorted[i]), 1.0e-12);
            EXPECT_TRUE (i == 0 || swing.moved (sorted[i]) >= swing.moved (sorted[i - 1])) << sorted[i];
        }

        EXPECT_EQ (swing.moved (6.0), 6.0) << settings.centre;
    }
}

TEST (Swing, LeavesEverythingExactlyInPlaceWhenNeutral)
{
    const SwingWarp swing (SwingSettings::from (0.5, 1));

    for (const auto time :
         { Ranges::Span { 0.1, 0.2 }, Ranges::Span { 1.0 / 3.0, 0.7 }, Ranges::Span { -0.3, 17.1 } })
        EXPECT_EQ (swing.moved (time), time) << time.start;
}
} // namespace
} // namespace Zn::Sequencer
