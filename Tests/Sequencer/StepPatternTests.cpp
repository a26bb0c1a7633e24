#include "Sequencer/Modifiers/TimedSteps.h"
#include "Sequencer/PatternSlot.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

namespace Zn::Sequencer::Modifiers
{
namespace
{
using namespace Tests;

StepPulseSequencer drawn (std::string_view drawing, double quarters, int row = 60)
{
    StepPulseSequencer pattern;
    pattern.steps = steps (drawing, row);
    pattern.duration.setQuarters (quarters);
    return pattern;
}

TEST (StepPulseSequencer, IsSilentUntilDrawn)
{
    EXPECT_EQ (asText (rendered (StepPulseSequencer())), "0+1 notes:  sequences: @0+1 marks: ");

    StepPulseSequencer pattern;
    pattern.layOut (4);
    EXPECT_EQ (asText (pattern.steps), "36 @0+0.245, 36 @0.25+0.245, 36 @0.5+0.245, 36 @0.75+0.245");
}

TEST (StepPulseSequencer, PlaysEnabledStepsInStoredOrder)
{
    auto pattern = drawn ("o.x-", 4.0);
    pattern.steps.push_back (note (64, 0.25, 0.5));

    EXPECT_EQ (asText (rendered (pattern)), "0+4 notes: 60 @2+2, 64 @1+2 sequences: @0+4 marks: ");
}

TEST (StepPulseSequencer, HoldsItsPlaceWhenNothingSounds)
{
    EXPECT_EQ (asText (rendered (drawn ("oooo", 4.0))), "0+4 notes:  sequences: @0+4 marks: ");
    EXPECT_EQ (asText (rendered (drawn ("....", 4.0))), "0+4 notes:  sequences:  marks: ")
        << "no step, no mark";
}

TEST (StepPulseSequencer, StretchesItsDrawingWithItsLength)
{
    auto pattern = drawn ("x-.xo.x-", 1.0);
    const auto drawing = pattern.steps;
    const auto once = rendered (pattern).notes;

    for (auto length : { 0.25, 3.0, 5.5 })
    {
        pattern.duration.setQuarters (length);
        const auto stretched = rendered (pattern).notes;
        ASSERT_EQ (stretched.size(), once.size());

        for (std::size_t i = 0; i < once.size(); ++i)
        {
            EXPECT_DOUBLE_EQ (stretched[i].time.start, once[i].time.start * length) << length;
            EXPECT_DOUBLE_EQ (stretched[i].time.length, once[i].time.length * length) << length;
        }
    }

    EXPECT_EQ (pattern.steps, drawing);
}

TEST (PatternSlot, LastsItsTimeOrAColumnsTimeForEachColumn)
{
    PatternSlot slot;
    EXPECT_EQ (slot.length(), 4.0);

    slot.multiply = true;
    slot.time.setBars ({ { { 1, 16 } } });
    EXPECT_EQ (slot.length(), 4.0);

    slot.pattern.grid = 5;
    EXPECT_EQ (slot.length(), 1.25);
}

TimedSteps lane()
{
    TimedSteps result;

    for (const auto& sequence : { drawn ("x.", 1.0, 60), drawn ("o", 0.5, 61), drawn ("xx", 2.0, 62) })
        result.sequences.push_back (std::make_unique<StepPulseSequencer> (sequence));

    result.channel = 3;
    return result;
}

TEST (TimedSteps, PlaysItsSequencesInTurnOnItsChannel)
{
    const auto events = rendered (lane());

    EXPECT_EQ (asText (events),
               "0+3.5 notes: 60 @0+0.5, 62 @1.5+1, 62 @2.5+1 sequences: @0+1, @1+0.5, @1.5+2 marks: ");

    for (const auto& element : events.notes)
        EXPECT_EQ (element.event.channel, 3);
}

TEST (TimedSteps, HoldsItsPlaceWhenMutedOrEmpty)
{
    auto muted = lane();
    muted.mute = true;

    EXPECT_EQ (asText (rendered (muted)), "0+4 notes:  sequences:  marks: ");
    EXPECT_EQ (asText (rendered (TimedSteps())), "0+4 notes:  sequences:  marks: ");
}
} // namespace
} // namespace Zn::Sequencer::Modifiers
