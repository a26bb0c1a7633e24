#include "GUI/Pattern/RowNames.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
RowNames namesOf (const Midi::NoteList& keys, Midi::PitchLimits limits = Midi::wholeKeyboard)
{
    return RowNames::from (Midi::RowToPitchTable::from (keys, limits), 3);
}
} // namespace

TEST (RowNames, CountsKeysWhileNoneAreHeld)
{
    const auto names = namesOf ({});
    EXPECT_EQ (names.of (64).text, "Key 1");
    EXPECT_EQ (names.of (66).text, "+2");
    EXPECT_EQ (names.of (63).text, juce::String::fromUTF8 ("\xe2\x88\x92") + "1");
    EXPECT_TRUE (names.isTinted (64) && ! names.isTinted (63) && ! names.isTinted (67));
}

TEST (RowNames, WalksThroughTheHeldKeysOctaveByOctave)
{
    const auto names = namesOf ({ 64, 57, 60 });
    EXPECT_EQ (names.of (64).text, "A2");
    EXPECT_EQ (names.of (65).text, "C3");
    EXPECT_EQ (names.of (67).text, "A3");
    EXPECT_EQ (names.of (63).text, "E2");

    for (auto row = 52; row < 76; ++row)
    {
        EXPECT_EQ (names.of (row).isLowest, (row - 64) % 3 == 0) << row;
        EXPECT_EQ (names.of (row).isHeld, row >= 64 && row < 67) << row;
        EXPECT_FALSE (names.of (row).isMoved) << row;
    }

    EXPECT_FALSE (namesOf ({ 60 }).of (65).isLowest) << "of a single key every row would be";
}

TEST (RowNames, MarksWhatTheOctaveRangeMoves)
{
    const auto names = namesOf ({ 57, 60, 64 }, { 48, 72 });
    EXPECT_FALSE (names.of (64).isMoved);
    EXPECT_FALSE (names.of (62).isMoved); // C2, the lowest in the range
    EXPECT_EQ (names.of (61).text, "A2");
    EXPECT_TRUE (names.of (61).isMoved);
}
} // namespace Zn::GUI
