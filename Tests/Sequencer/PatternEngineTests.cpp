#include "Sequencer/EngineRig.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Zn::Tests
{
namespace
{
/** Two rows that take turns, each step touching the next. */
Sequencer::RenderedSlot twoRows()
{
    return loop (1.0, steps ("x.", 64), steps (".x", 65));
}
} // namespace

TEST (PatternEngine, PlaysEachStepAtTheSampleThatCrossesItsStart)
{
    EngineRig rig { twoRows() };

    EXPECT_EQ (text (rig.play (20)),
               "on 64 v102 @0, "
               "off 64 @4, on 65 v102 @4, off 65 @8, on 64 v102 @8, "
               "off 64 @12, on 65 v102 @12, off 65 @16, on 64 v102 @16");

    EngineRig uneven { loop (1.03, Notes { note (64, 0.0, 0.5) }, Notes { note (65, 0.5, 0.6) }) };

    EXPECT_EQ (text (uneven.play (28)),
               "on 64 v102 @0, off 64 @4, on 65 v102 @4, off 65 @9, on 64 v102 @9, "
               "off 64 @12, on 65 v102 @12, off 65 @17, on 64 v102 @17, "
               "off 64 @20, on 65 v102 @20, off 65 @25, on 64 v102 @25");
}

TEST (PatternEngine, DrawsChanceThenSpreadForEachStep)
{
    auto chances = steps ("xxxxxxxx", 60);

    for (auto& step : chances)
    {
        step.time.length = 0.25;
        step.event.chance = 0.5f;
    }

    EngineRig chance { loop (4.0, chances) };
    EXPECT_EQ (text (chance.play (32)),
               "on 60 v102 @0, off 60 @2, off 60 @6, on 60 v102 @8, off 60 @10, on 60 v102 @12, off 60 @14, "
               "off 60 @18, on 60 v102 @20, off 60 @22, off 60 @26, off 60 @30");

    auto spreads = chances;

    for (auto& step : spreads)
    {
        step.event.chance = 1.0f;
        step.event.velocity = 0.5f;
        step.event.spreadHigh = 0.4f;
    }

    EngineRig spread { loop (4.0, spreads) };
    EXPECT_EQ (text (spread.play (13)),
               "on 60 v101 @0, off 60 @2, on 60 v83 @4, off 60 @6, on 60 v82 @8, off 60 @10");
}

TEST (PatternEngine, EndsWhatAnEditedPatternNoLongerHolds)
{
    struct Row
    {
        const char* what;
        Sequencer::RenderedSlot edited;
        const char *next, *afterNext;
    };

    const Row rows[] = {
        { "taken away", loop (4.0), "off 64 @0", "" },
        { "unchanged", loop (4.0, steps ("x---")), "", "" },
        { "already over", loop (4.0, steps ("x...")), "off 64 @0", "" },
        { "shortened", loop (4.0, steps ("xx..")), "off 64 @0, on 64 v102 @0", "off 64 @0" },
        { "moved to another row", loop (4.0, steps ("x---", 70)), "on 70 v102 @0, off 64 @0", "" },
        { "loop without a length", loop (0.0, steps ("x---")), "off 64 @0", "" }
    };

    for (const auto& row : rows)
    {
        EngineRig rig { loop (4.0, steps ("x---")) };
        rig.play (5);
        rig.draw (0, row.edited);

        EXPECT_EQ (text (rig.play (3)), row.next) << row.what;
        EXPECT_EQ (text (rig.play (4)), row.afterNext) << row.what;
    }
}

TEST (PatternEngine, RestartsThePatternAtTheNextSample)
{
    EngineRig rig { twoRows() };
    rig.play (6);
    rig.engine.requestRestart();

    EXPECT_EQ (text (rig.play (6)), "off 65 @0, on 64 v102 @0, off 64 @4, on 65 v102 @4");
    EXPECT_EQ (text (rig.play (4)), "off 65 @2, on 64 v102 @2");

    rig.jumpTo (10.5);
    EXPECT_EQ (text (rig.play (1)),
               "off 64 @0"); // a jump counts from the song's start again: row 65 begins here
    EXPECT_EQ (text (rig.play (1)), "on 65 v102 @0");

    rig.jumpTo (20.5);
    rig.engine.requestRestart();
    EXPECT_EQ (text (rig.play (2)), "off 65 @0, on 64 v102 @0"); // a key wins over a jump
}

TEST (PatternEngine, PlaysASlotThatDoesNotLoopOnceFromItsAnchor)
{
    EngineRig rig { once (steps ("x.x.")) };

    EXPECT_EQ (text (rig.play (40)), "on 64 v102 @0, off 64 @4, on 64 v102 @8, off 64 @12");
    rig.engine.requestRestart();
    EXPECT_EQ (text (rig.play (4)), "on 64 v102 @0");
}

TEST (PatternEngine, ChangesTheSlotAtOnceWhileLiveChangesAreOff)
{
    EngineRig rig { loop (4.0, steps ("x-------", 60)) };
    rig.draw (1, loop (4.0, steps ("x---", 70)));
    rig.live().enable = false;
    rig.play (3);
    rig.ask (1);

    EXPECT_EQ (text (rig.play (2)), "off 60 @0, on 70 v102 @0"); // in song time: its first note already lasts

    rig.ask (0);
    rig.engine.requestRestart(); // of a slot that is no longer heard
    EXPECT_EQ (text (rig.play (2)), "off 70 @0, on 60 v102 @0");
    EXPECT_EQ (text (rig.play (2)), "");
}

TEST (PatternEngine, AnEmptyCallChangesNothing)
{
    EngineRig rig { loop (4.0, steps ("x---")) };
    rig.play (4);
    rig.ask (1);
    rig.engine.requestRestart();

    EXPECT_EQ (text (rig.play (0)), "");
    EXPECT_EQ (rig.live().pending, 1);
    EXPECT_EQ (text (rig.play (1)), "off 64 @0"); // the restart was still due; its start is in the next call
    EXPECT_EQ (text (rig.play (1)), "on 64 v102 @0");
}

TEST (PatternEngine, ShowsTheEditorWhereThePatternIs)
{
    const auto emitter = std::make_shared<Sequencer::PlayPosition>();
    auto pattern = loop (2.0, steps ("x.x."));
    pattern.events.sequences.push_back ({ { 0.0, 2.0 }, emitter, true });

    EngineRig rig { pattern };
    rig.play (20);
    EXPECT_EQ (emitter->position, 0.375);

    rig.live().enable = false;
    rig.ask (1);
    rig.play (1);
    EXPECT_EQ (emitter->position, -1.0);
    EXPECT_FALSE (emitter->fired);
}

TEST (PatternEngine, ReportsEachMarkItPassesUntilTheEditorHasSeenIt)
{
    const auto first = std::make_shared<Sequencer::PlayPosition>();
    const auto second = std::make_shared<Sequencer::PlayPosition>();
    auto pattern = loop (1.0);
    pattern.events.marks = { { { 0.25, 0.5 }, first, true }, { { 0.5, 0.5 }, second, true } };

    EngineRig rig { pattern };
    rig.play (20);

    const auto marks = rig.engine.getFiredMarks();
    ASSERT_EQ (marks.size(), 2u);
    EXPECT_EQ (marks[0].emitter, first.get());
    EXPECT_EQ (marks[0].sample, 2);
    EXPECT_EQ (marks[1].sample, 4);
    EXPECT_EQ (marks[1].position, 0.5);

    first->fired = false;
    rig.play (20); // from 2.5 on: the next pass reaches the first mark at its sixth sample
    ASSERT_EQ (rig.engine.getFiredMarks().size(), 1u);
    EXPECT_EQ (rig.engine.getFiredMarks()[0].sample, 6);
}
} // namespace Zn::Tests
