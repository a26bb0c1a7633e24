#include "GUI/Pattern/WholePattern.h"

#include "Support/StepText.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
using Tests::note;

Drawing drawingOf (int grid, bool multiply, Sequencer::Bar bar)
{
    Drawing drawing { .notes = { note (60, 0.0, 0.98 / grid),
                                 note (67, 1.0 / grid, 1.0 / grid),
                                 note (64, 0.5, 2.0 / grid),
                                 note (61, 1.0 - 1.0 / grid, 0.5 / grid) },
                      .grid = grid,
                      .multiply = multiply,
                      .time = { { bar } } };
    return drawing;
}

double lengthOf (const Drawing& drawing)
{
    Sequencer::PatternSlot slot;
    drawing.writeTo (slot);
    return slot.length();
}
} // namespace

TEST (WholePattern, HalvingTakesARepetitionBack)
{
    for (const auto multiply : { false, true })
        for (const auto grid : { 4, 12, 16, 64, 128 })
            for (const auto bar : { Sequencer::Bar { 4, 4 }, { 1, 16 }, { 24, 8 }, { 31, 2 } })
            {
                SCOPED_TRACE (testing::Message()
                              << grid << (multiply ? " x " : " ") << bar.num << "/" << bar.denum);
                const auto drawing = drawingOf (grid, multiply, bar);
                auto repeated = drawing;
                WholePattern::repeatTwice (repeated);

                EXPECT_EQ (repeated.numNotes(), 8);
                EXPECT_DOUBLE_EQ (lengthOf (repeated), 2.0 * lengthOf (drawing));

                WholePattern::halve (repeated);
                EXPECT_EQ (repeated.notes, drawing.notes);
                EXPECT_DOUBLE_EQ (lengthOf (repeated), lengthOf (drawing));
            }
}

TEST (WholePattern, TurningOverTwiceAndShiftingAroundChangeNothing)
{
    const auto drawing = drawingOf (16, false, { 4, 4 });

    const auto expectSame = [&] (const char* what, const Drawing& result) {
        ASSERT_EQ (result.numNotes(), drawing.numNotes());

        for (auto i = 0; i < result.numNotes(); ++i)
        {
            EXPECT_NEAR (result.note (i).time.start, drawing.note (i).time.start, 1.0e-12) << what << i;
            EXPECT_NEAR (result.note (i).time.length, drawing.note (i).time.length, 1.0e-12) << what << i;
            EXPECT_EQ (result.note (i).event, drawing.note (i).event) << what << i;
        }
    };

    auto reversed = drawing, inverted = drawing, shifted = drawing;
    WholePattern::reverse (reversed);
    EXPECT_DOUBLE_EQ (reversed.note (0).time.start, 15.0 / 16.0) << "at the start of its column, as before";
    WholePattern::reverse (reversed);
    expectSame ("reversed ", reversed);

    WholePattern::invertRows (inverted);
    EXPECT_EQ (inverted.note (1).event.noteNum, 60);
    WholePattern::invertRows (inverted);
    expectSame ("inverted ", inverted);

    shifted.notes.erase (shifted.notes.begin() + 2); // would be cut on its way across the end
    const auto before = shifted.notes;

    for (auto column = 0; column < 16; ++column)
        WholePattern::shift (shifted, column < 5 ? -1 : 1);

    WholePattern::shift (shifted, -6);
    EXPECT_EQ (Tests::asText (shifted.notes), Tests::asText (before));
}
} // namespace Zn::GUI
