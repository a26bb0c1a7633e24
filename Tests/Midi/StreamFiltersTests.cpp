#include "Midi/StreamFilters.h"

#include "Midi/EventWriter.h"
#include "Support/MidiText.h"
#include "Support/NoteStreams.h"

#include <gtest/gtest.h>

using namespace Zn::Midi;
using namespace Zn::Tests;

TEST (StreamFilters, KeepMessagesOfThreeBytesWithinTheBlock)
{
    const std::pair<const char*, const char*> rows[] {
        { "on 60 @0, hex C0 05 @1, hex D0 40 @2, off 60 @3", "on 60 @0, off 60 @3" },
        { "hex F0 01 02 F7 @0, hex F0 01 F7 @1, hex F2 01 02 @2, hex F8 @3",
          "hex F0 01 F7 @1, hex F2 01 02 @2" },
        { "on 60 ch5 @-3, on 61 @63, off 60 ch5 @64, off 61 @900",
          "on 60 ch5 @0, on 61 @63, off 60 ch5 @63, off 61 @63" },
        { "", "" },
    };

    for (const auto& [input, expected] : rows)
    {
        juce::MidiBuffer kept;
        appendThreeByteMessages (events (input), kept, 64);
        EXPECT_EQ (text (kept), expected) << input;
    }
}

TEST (StreamFilters, FlattenMovesWhatHasAChannelToTheFirst)
{
    juce::MidiBuffer scratch = events ("on 1 @0");
    auto buffer = events ("on 60 ch5 @0, off 60 v9 ch16 @1, cc 1 2 ch3 @2, hex C4 05 @3, hex F2 01 02 @4");
    flattenChannels (scratch, buffer);

    EXPECT_EQ (text (buffer), "on 60 @0, off 60 v9 @1, cc 1 2 @2, hex C0 05 @3, hex F2 01 02 @4");
}

TEST (StreamFilters, SplitLeavesNotesAndThePedal)
{
    juce::MidiBuffer scratch = events ("on 1 @0"), others = events ("on 2 @0");
    auto buffer =
        events ("on 60 @0, cc 64 127 @0, cc 1 5 @0, off 60 @2, hex E0 00 40 @3, on 61 v0 @4, cc 123 0 @5");
    splitNotesAndPedal (scratch, others, buffer);

    EXPECT_EQ (text (buffer), "on 60 @0, cc 64 127 @0, off 60 @2, on 61 v0 @4");
    EXPECT_EQ (text (others), "cc 1 5 @0, hex E0 00 40 @3, cc 123 0 @5");
}

TEST (StreamFilters, MergePutsOtherEventsBehindTheBuffersOwn)
{
    const std::tuple<const char*, const char*, const char*> rows[] {
        { "on 60 @5, on 61 @5, off 60 @9",
          "cc 1 1 @0, cc 1 2 @5, cc 1 3 @9, cc 1 4 @20",
          "cc 1 1 @0, on 60 @5, on 61 @5, cc 1 2 @5, off 60 @9, cc 1 3 @9, cc 1 4 @20" },
        { "", "cc 1 1 @0, cc 1 2 @5", "cc 1 1 @0, cc 1 2 @5" },
        { "on 60 @5", "", "on 60 @5" },
        { "", "", "" },
    };

    for (const auto& [own, others, expected] : rows)
    {
        auto scratch = events ("on 1 @0"), buffer = events (own);
        mergeEvents (scratch, buffer, events (others));
        EXPECT_EQ (text (buffer), expected);
    }
}

TEST (EventWriter, GivesTheSameBufferAsAddingOneByOne)
{
    const auto sysex = events ("hex F0 01 02 03 04 05 06 07 08 09 F7 @100");

    for (auto seed = 0; seed < 20; ++seed)
    {
        auto expected = events ("on 1 @5, off 1 @250"), written = expected;
        EventWriter writer (written);
        juce::Random random (seed);

        const auto addToBoth = [&] (const juce::MidiBuffer& source, int offset) {
            for (const auto event : source)
            {
                writer.add (event, event.samplePosition + offset);
                expected.addEvent (event.data, event.numBytes, event.samplePosition + offset);
            }
        };

        addToBoth (randomPlaying (seed), random.nextInt (500)); // mostly in order
        addToBoth (sysex, 0);                                   // back to an earlier time
        addToBoth (randomPlaying (seed + 1), 0);

        EXPECT_EQ (written.data, expected.data) << "seed " << seed;
    }
}
