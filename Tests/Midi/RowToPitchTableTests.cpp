#include "Midi/HeldNotes.h"
#include "Midi/PitchTableRing.h"
#include "Midi/RowToPitchTable.h"
#include "Support/MidiText.h"

#include <gmock/gmock.h>

#include <thread>

using namespace Zn::Midi;
using namespace Zn::Tests;
using testing::ElementsAreArray;

namespace
{
/** The pitches of rows in turn; -1 for a row without one. */
std::vector<int> pitches (const RowToPitchTable& table, int firstRow, int lastRow)
{
    std::vector<int> result;

    for (auto row = firstRow; row <= lastRow; ++row)
    {
        const auto inRow = table.pitchesOf (row);
        EXPECT_LE (inRow.size(), 1u);
        result.push_back (inRow.empty() ? -1 : inRow.front());
    }

    return result;
}

/** Plays notes into the held list; a letter for each tells whether the table was to be rebuilt. */
std::string rebuilds (HeldNotes& held, std::string_view input, bool keyMode)
{
    std::string result;

    for (const auto event : events (input))
        result += held.follow (event, keyMode) ? 'R' : '-';

    return result;
}
} // namespace

TEST (RowToPitchTable, WalksThroughTheHeldNotesOctaveAfterOctave)
{
    const struct
    {
        NoteList held;
        PitchLimits limits;
        int firstRow;
        std::vector<int> expected;
    } rows[] = {
        { { 67, 60, 64 }, wholeKeyboard, 60, { 43, 48, 52, 55, 60, 64, 67, 72, 76, 79, 84 } },
        { { 60, 64, 67 }, { 48, 72 }, 61, { 48, 52, 55, 60, 64, 67, 60, 64, 67, 60 } },
        { { 60, 64, 67 }, { 60, 66 }, 63, { 60, 60, 64, 66, 66 } },
        { { 60, 64, 67 }, { 66, 60 }, 63, { 66, 66, 66 } },
        { { 60 }, wholeKeyboard, 59, { 0, 12, 24, 36, 48, 60, 72, 84, 96, 108, 120 } },
        { {}, wholeKeyboard, 63, { -1, -1, -1 } },
    };

    for (const auto& row : rows)
    {
        const auto table = RowToPitchTable::from (row.held, row.limits);
        const auto lastRow = row.firstRow + static_cast<int> (row.expected.size()) - 1;
        EXPECT_THAT (pitches (table, row.firstRow, lastRow), ElementsAreArray (row.expected));
    }
}

TEST (RowToPitchTable, FindsAPlaceWithinTheLimitsForEveryRow)
{
    juce::Random random (1);

    for (auto round = 0; round < 200; ++round)
    {
        NoteList held;
        const PitchLimits limits { 12 * random.nextInt (5),
                                   12 * (6 + random.nextInt (5)) - random.nextInt (6) };

        for (auto i = 1 + random.nextInt (10); --i >= 0;)
            held.add (random.nextInt (128));

        const auto table = RowToPitchTable::from (held, limits);

        for (auto row = 0; row < 128; ++row)
        {
            const auto pitch = pitches (table, row, row).front();
            const auto wanted = (row - 64 + 128 * held.size()) % held.size();

            EXPECT_GE (pitch, limits.low);
            EXPECT_LT (pitch, limits.high);
            EXPECT_EQ (pitch % 12, held.sorted()[wanted] % 12) << "row " << row;
        }
    }
}

TEST (RowToPitchTable, IsEqualToAnyOtherBuiltOfTheSame)
{
    auto table = RowToPitchTable::from ({ 60, 64, 67 }, { 48, 72 });
    table.rebuild ({}, wholeKeyboard);
    EXPECT_EQ (table, RowToPitchTable());

    table.rebuild ({ 67, 60 }, { 48, 72 });
    EXPECT_EQ (table, RowToPitchTable::from ({ 60, 67 }, { 48, 72 }));
    EXPECT_NE (table, RowToPitchTable::from ({ 60, 68 }, { 48, 72 }));
    EXPECT_NE (table, RowToPitchTable::from ({ 60, 67 }, { 48, 71 }));

    const auto copy = table;
    EXPECT_EQ (copy, table);
    EXPECT_TRUE (table.pitchesOf (-1).empty() && table.pitchesOf (128).empty());
}

TEST (HeldNotes, TellWhenTheTableHasToBeRebuilt)
{
    const auto* playing = "on 60 @0, on 64 @1, on 64 @2, off 60 @3, off 99 @4, on 64 v0 @5, off 64 @6";
    HeldNotes free, inKeyMode;

    EXPECT_EQ (rebuilds (free, playing, false), "RRR--RR");
    EXPECT_EQ (rebuilds (inKeyMode, playing, true), "RRRRRRR");
}

TEST (HeldNotes, StandInTheOrderOfPressing)
{
    HeldNotes held;
    rebuilds (held, "on 64 @0, on 60 @0, on 67 @0, on 64 @0, off 60 @0, on 50 @0", false);

    EXPECT_THAT (held, ElementsAreArray ({ 64, 67, 50 }));
    EXPECT_THAT (held.sorted(), ElementsAreArray ({ 50, 64, 67 }));
}

TEST (PitchTableRing, ShowsTheNewestTableWithTheLimitsOfNow)
{
    const auto ring = std::make_unique<PitchTableRing>();
    auto writer = ring->getWriter();
    auto reader = ring->getReader();
    EXPECT_EQ (reader.newest(), RowToPitchTable());

    for (auto note = 0; note < 20; ++note)
        writer.publish (RowToPitchTable::from ({ note, note + 4 }, wholeKeyboard), { note, 100 });

    auto expected = RowToPitchTable::from ({ 19, 23 }, wholeKeyboard);
    expected.setLimits ({ 19, 100 });
    EXPECT_EQ (reader.newest(), expected);
    EXPECT_EQ (reader.getChangeCount(), 20);
}

TEST (PitchTableRing, NeverShowsATornTable)
{
    const auto ring = std::make_unique<PitchTableRing>();
    std::atomic<bool> done { false };

    std::jthread audio ([&] {
        auto writer = ring->getWriter();
        const auto one = RowToPitchTable::from ({ 60 }, wholeKeyboard);
        const auto three = RowToPitchTable::from ({ 61, 64, 67 }, wholeKeyboard);

        for (auto i = 0; i < 20000; ++i)
            writer.publish (i % 2 == 0 ? one : three, wholeKeyboard);

        done = true;
    });

    auto reader = ring->getReader();

    while (! done)
    {
        const auto& table = reader.newest();
        ASSERT_EQ (table, RowToPitchTable::from (table.getHeldNotes(), wholeKeyboard));
    }
}
