#include "Midi/StreamFilters.h"

#include "Midi/EventWriter.h"
#include "Support/MidiText.h"
#include "Support/NoteStreams.h"

#include <gtest/gtest.h>

using namespace Zn::Midi;
using namespace Zn::Tests;

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
