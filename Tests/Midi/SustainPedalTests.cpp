#include "Midi/SustainPedal/SimpleProcessor.h"
#include "Support/MidiText.h"
#include "Support/NoteStreams.h"

#include <gtest/gtest.h>

using namespace Zn::Midi;
using namespace Zn::Tests;

TEST (SustainPedal, HoldsBackTheEndsOfNotesUntilItIsLifted)
{
    const struct
    {
        const char *what, *input, *expected;
    } rows[] = {
        { "pedal up", "on 60 @0, off 60 v7 @1, cc 64 0 @2", "on 60 @0, off 60 v7 @1" },
        { "lifts wait, in their order",
          "on 60 @0, on 64 @0, cc 64 64 @1, off 64 @2, on 60 v0 @3, cc 64 63 ch2 @9",
          "on 60 @0, on 64 @0, off 64 v25 ch2 @9, off 60 v25 ch2 @9" },
        { "a key that is still down goes on",
          "on 60 @0, cc 64 127 @1, cc 64 0 @2, off 60 @3",
          "on 60 @0, off 60 @3" },
        { "pressed again, it passes again and ends with the pedal",
          "cc 64 127 @0, on 60 @0, off 60 @1, on 60 v9 @2, cc 64 0 @3, off 60 @4",
          "on 60 @0, on 60 v9 @2, off 60 v25 @3, off 60 @4" },
        { "lifted twice, it ends once",
          "cc 64 127 @0, on 60 @0, off 60 @1, off 60 @2, cc 64 0 @3, cc 64 0 @4",
          "on 60 @0, off 60 v25 @3" },
        { "other messages pass", "cc 65 127 @0, hex E0 00 40 @1", "cc 65 127 @0, hex E0 00 40 @1" },
    };

    for (const auto& row : rows)
    {
        SustainPedal::SimpleProcessor pedal;
        auto buffer = events (row.input);
        pedal.process (buffer);
        EXPECT_EQ (text (buffer), row.expected) << row.what;
    }
}

TEST (SustainPedal, TellsWhetherItIsDown)
{
    SustainPedal::SimpleProcessor pedal;

    for (const auto isDown : { true, true, false, true })
    {
        auto buffer = events (isDown ? "cc 64 64 @0" : "cc 64 63 @0");
        pedal.process (buffer);
        EXPECT_EQ (pedal.isPedalDown(), isDown);
    }
}

TEST (SustainPedal, LeavesNothingHangingHoweverTheBlockIsCut)
{
    for (auto seed = 0; seed < 20; ++seed)
    {
        const auto input = randomPlaying (seed, { .lowestNote = 40, .highestNote = 50, .usesPedal = true });
        const auto play = [&] (const std::vector<int>& blocks) {
            SustainPedal::SimpleProcessor pedal;
            return inBlocks (input, blocks, [&] (juce::MidiBuffer& block) { pedal.process (block); });
        };

        const auto whole = play ({ 4000 });
        EXPECT_EQ (stillSounding (whole), "") << "seed " << seed;
        EXPECT_EQ (text (play (randomBlocks (seed, 4000))), text (whole)) << "seed " << seed;
    }
}
