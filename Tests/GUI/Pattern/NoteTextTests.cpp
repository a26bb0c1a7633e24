#include "GUI/Pattern/LaneHandles.h"
#include "GUI/Pattern/NoteText.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
Sequencer::TimedNote note (double start, double length, int row, float velocity = 0.8f)
{
    Sequencer::TimedNote result;
    result.time = { start, length };
    result.event.noteNum = row;
    result.event.velocity = velocity;
    result.enabled = true;
    return result;
}
} // namespace

TEST (NoteText, TellsPlaceAndValues)
{
    auto told = note (5.0 / 16.0, 1.0 / 16.0, 67, 0.74f);
    told.event.chance = 0.5f;

    const auto table = Midi::RowToPitchTable::from ({ 57, 60, 64, 67 }, Midi::wholeKeyboard);
    EXPECT_EQ (noteText (told, RowNames::from (table, 3), {}),
               "Row 3, G3, beat 2.2, length 1, velocity 74 %, chance 50 %");

    told.enabled = false;
    told.time.length *= 1.5;
    const RowNames noKeys = RowNames::from (Midi::RowToPitchTable::from ({}, Midi::wholeKeyboard), 3);
    EXPECT_EQ (noteText (told, noKeys, {}),
               "Row 3, beat 2.2, length 1.5, velocity 74 %, chance 50 %, disabled");
}

TEST (LaneHandles, FanOutWhereNotesStartTogether)
{
    Drawing drawing;
    drawing.notes = { note (0.5, 0.1, 70), note (0.0, 0.1, 64), note (0.5, 0.1, 60, 0.2f) };
    const auto roll =
        RollGeometry {}.resized ({ .width = 1048, .height = 231 }, 14.44, RollGeometry::firstCentre);
    const LaneGeometry lane { .height = 56.0f, .handle = 7.0f };
    const auto handles = lane.handlesOf (drawing, NoteValue::velocity, roll);

    ASSERT_EQ (handles.size(), 3u);
    EXPECT_EQ (handles[0].note, 1);
    EXPECT_EQ (handles[1].note, 2) << "the lower row first";
    EXPECT_GT (handles[2].position.x, handles[1].position.x + lane.handle) << "apart";

    for (const auto& handle : handles)
    {
        EXPECT_EQ (lane.hit (handle.position, handles), handle.note);
        EXPECT_NEAR (lane.valueAt (handle.position.y), drawing.note (handle.note).event.velocity, 1.0e-3f);
    }

    EXPECT_EQ (lane.hit ({ 300.0f, 20.0f }, handles), -1);
}
} // namespace Zn::GUI
