#include "Midi/RowExpander.h"

#include "Support/MidiText.h"

#include <gtest/gtest.h>

using namespace Zn::Midi;
using namespace Zn::Tests;

namespace
{
juce::MidiBuffer
expand (RowExpander& expander, const juce::MidiBuffer& rows, const RowToPitchTable& table, int offset = 0)
{
    juce::MidiBuffer pitches;
    EventWriter writer (pitches);
    expander.process (rows, table, writer, offset);
    return pitches;
}

RowToPitchTable held (std::initializer_list<int> notes, PitchLimits limits = wholeKeyboard)
{
    return RowToPitchTable::from (notes, limits);
}
} // namespace

TEST (RowExpander, PlaysThePitchesOfRows)
{
    const struct
    {
        const char* what;
        RowToPitchTable table;
        const char *rows, *expected;
    } cases[] = {
        { "rows become pitches, all else passes",
          held ({ 60, 64 }),
          "on 64 v80 ch2 @0, cc 1 2 @1, on 65 @2, off 64 ch2 @3, off 65 @4",
          "on 60 v80 ch2 @10, cc 1 2 @11, on 64 @12, off 60 ch2 @13, off 64 @14" },
        { "a row without a pitch is silent", held ({}), "on 64 @0, off 64 @1", "" },
        { "two rows of one pitch restart it, and the first to end ends it",
          held ({ 60 }, { 60, 72 }),
          "on 64 @0, on 65 @1, off 64 @2, off 65 @3",
          "on 60 @10, off 60 @11, on 60 @11, off 60 @13" },
        { "an end without a start is dropped", held ({ 60 }), "off 64 @0, on 64 v0 @1", "" },
    };

    for (const auto& each : cases)
    {
        RowExpander expander;
        EXPECT_EQ (text (expand (expander, events (each.rows), each.table, 10)), each.expected) << each.what;
    }
}

TEST (RowExpander, EndsAPitchThatTheTableNoLongerHas)
{
    RowExpander expander;

    EXPECT_EQ (text (expand (expander, events ("on 64 @0, on 65 @1"), held ({ 60, 64 }))),
               "on 60 @0, on 64 @1");
    EXPECT_EQ (text (expand (expander, events ("off 64 @0, on 64 @0"), held ({ 61 }))),
               "off 60 @0, on 61 @0");
    EXPECT_EQ (text (expand (expander, events ("off 64 @0, off 65 @0"), held ({}))), "off 61 @0, off 64 @0");
}
