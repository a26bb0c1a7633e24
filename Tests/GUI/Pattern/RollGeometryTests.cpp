#include "GUI/Pattern/RollGeometry.h"

#include <gtest/gtest.h>

#include <array>

namespace Zn::GUI
{
namespace
{
/** As the roll is at first, in editors of odd sizes too. */
std::array<RollGeometry, 4> rolls()
{
    const auto roll = [] (int width, int height, double rowHeight) {
        return RollGeometry {}.resized ({ .width = width, .height = height },
                                        rowHeight,
                                        RollGeometry::firstCentre);
    };

    return { roll (1048, 231, 14.44),
             roll (763, 168, 10.51),
             roll (2097, 838, 28.88),
             roll (1048, 231, 14.44).zoomedTime (3.7, 700.0).scrolled (0.0, 11.5) };
}

Sequencer::TimedNote note (double start, double length, int row)
{
    Sequencer::TimedNote result;
    result.time = { start, length };
    result.event.noteNum = row;
    result.enabled = true;
    return result;
}
} // namespace

TEST (RollGeometry, FindsEveryPixelInTheRowThatIsPaintedThere)
{
    for (const auto& roll : rolls())
        for (auto y = 0; y < roll.size.height; ++y)
        {
            const auto row = roll.rowAt (y);
            const auto bounds = roll.boundsOfRow (row);
            ASSERT_TRUE (bounds.getY() <= y && y < bounds.getBottom()) << "pixel " << y << " row " << row;
            ASSERT_EQ (roll.boundsOfRow (row + 1).getBottom(), bounds.getY()) << "a gap over row " << row;
        }
}

TEST (RollGeometry, TurnsTimesIntoPixelsAndBack)
{
    for (const auto& roll : rolls())
        for (auto x : { 0.0, 1.0, 333.25, double (roll.size.width) })
            EXPECT_NEAR (roll.xOf (roll.timeAt (x)), x, 1.0e-6);

    EXPECT_EQ (RollGeometry {}.columnAt (3.0 / 16.0), 3) << "a column's start belongs to it";
    EXPECT_EQ (RollGeometry {}.columnAt (1.0), 15);
    EXPECT_EQ (RollGeometry {}.columnAt (-0.1), 0);
}

TEST (RollGeometry, OpensAroundTheLowestKey)
{
    const auto roll = rolls().front();
    EXPECT_EQ (roll.rowAt (0), 73);
    EXPECT_EQ (roll.rowAt (roll.size.height - 1), 58);

    const auto tall = roll.resized ({ .width = 1048, .height = 419 }, 14.44, RollGeometry::firstCentre);
    EXPECT_EQ (tall.rowAt (0), 80);
}

TEST (RollGeometry, KeepsWhatLiesUnderThePointerWhenItZooms)
{
    const auto roll = rolls().front().zoomedTime (4.0, 500.0);

    for (auto x : { 0.0, 500.0, 1000.0 })
        for (auto factor : { 0.8, 1.25, 2.0 })
            EXPECT_NEAR (roll.zoomedTime (factor, x).timeAt (x), roll.timeAt (x), 1.0e-9);

    const auto taller = roll.withRowHeight (20.0, 100.0);
    EXPECT_NEAR (taller.topRow - 100.0 / taller.rowHeight, roll.topRow - 100.0 / roll.rowHeight, 1.0e-9);
}

TEST (RollGeometry, ShowsNothingBeyondThePattern)
{
    const auto roll = rolls().front();

    EXPECT_EQ (roll.zoomedTime (0.1, 200.0).time, (juce::Range<double> { 0.0, 1.0 }));
    EXPECT_EQ (roll.zoomedTime (1000.0, 0.0).time.getLength(), 1.0 / 16.0);
    EXPECT_EQ (roll.zoomedTime (4.0, 0.0).scrolled (-2.0, 0.0).time.getStart(), 0.0);
    EXPECT_EQ (roll.zoomedTime (4.0, 0.0).scrolled (9.0, 0.0).time.getEnd(), 1.0);
    EXPECT_EQ (roll.scrolled (0.0, 500.0).topRow, 128.0);

    auto fine = roll;
    fine.grid = 128;
    fine = fine.zoomedTime (1000.0, 0.0);
    fine.grid = 16; // another slot has been opened
    EXPECT_EQ (fine.scrolled (0.0, 1.0).time, fine.time);
    EXPECT_EQ (fine.zoomedTime (1.25, 0.0).time, fine.time);
    EXPECT_EQ (roll.scrolled (0.0, -500.0).rowAt (roll.size.height - 1), 0);
}

TEST (RollGeometry, ScrollsSoFarAsACellNeeds)
{
    const auto roll = rolls().front().zoomedTime (4.0, 0.0);
    EXPECT_EQ (roll.showing (0.0, 0.1, 64), roll) << "nothing to do";

    for (auto row : { 0, 40, 90, 127 })
        for (auto start : { 0.0, 0.5, 15.0 / 16.0 })
        {
            const auto shown = roll.showing (start, start + 1.0 / 16.0, row);
            const auto seen = juce::Rectangle<int> (roll.size.width, roll.size.height);
            EXPECT_TRUE (seen.contains (shown.boundsOfCell (start, start + 1.0 / 16.0, row))) << row;
        }
}

TEST (RollGeometry, HitsTheUppermostNoteAndItsEnd)
{
    const auto roll = rolls().front(); // a column is 65.5 pixels wide
    const std::array notes { note (0.0, 0.25, 64), note (2.0 / 16.0, 1.0 / 16.0, 64), note (0.5, 0.01, 70) };
    const auto middle = roll.boundsOf (notes[1]).getCentreY();
    using Hit = RollGeometry::Hit;
    using Part = RollGeometry::Part;

    const auto hitAt = [&] (float x, float y) { return roll.hit ({ x, y }, notes); };
    EXPECT_EQ (hitAt (20.0f, middle), (Hit { 0, Part::body }));
    EXPECT_EQ (hitAt (140.0f, middle), (Hit { 1, Part::body }));
    EXPECT_EQ (hitAt (190.0f, middle), (Hit { 1, Part::end }));
    EXPECT_EQ (hitAt (250.0f, middle), (Hit { 0, Part::end }));
    EXPECT_EQ (hitAt (300.0f, middle), Hit {});
    EXPECT_EQ (hitAt (20.0f, middle - 16.0f), Hit {});

    const auto tiny = roll.boundsOf (notes[2]);
    EXPECT_EQ (hitAt (tiny.getX() + 1.0f, tiny.getCentreY()), (Hit { 2, Part::body }));
    EXPECT_EQ (hitAt (tiny.getRight() - 0.5f, tiny.getCentreY()), (Hit { 2, Part::end }));
}
} // namespace Zn::GUI
