#include "Midi/Mapper/NoteLimitProcessor.h"
#include "Midi/Mapper/TransposeProcessor.h"
#include "Support/MidiText.h"
#include "Support/NoteStreams.h"

#include <gtest/gtest.h>

using namespace Zn::Midi;
using namespace Zn::Tests;

namespace
{
std::string through (Mapper::NoteModifierProcessor& processor, std::string_view input)
{
    auto buffer = events (input);
    processor.process (buffer);
    return text (buffer);
}
} // namespace

TEST (Transpose, MovesNotesAndNothingElse)
{
    Mapper::TransposeProcessor transpose;
    transpose.setSemitones (7);

    EXPECT_EQ (through (transpose, "on 60 v1 @0, cc 1 2 @1, off 60 v99 @9"),
               "on 67 v1 @0, cc 1 2 @1, off 67 v1 @9");
    EXPECT_EQ (through (transpose, "on 125 ch4 @0, on 125 v0 ch4 @1"), "on 127 ch4 @0, off 127 v100 ch4 @1");

    transpose.setSemitones (-100);
    EXPECT_EQ (through (transpose, "on 60 @0, off 60 @1"), "on 0 @0, off 0 v100 @1");
}

TEST (Transpose, RestartsWhatSoundsWhenTheAmountChanges)
{
    Mapper::TransposeProcessor transpose;
    EXPECT_EQ (through (transpose, "on 60 v80 ch2 @3, on 64 @4"), "on 60 v80 ch2 @3, on 64 @4");

    transpose.setSemitones (12);
    EXPECT_EQ (through (transpose, "off 60 @0"),
               "off 60 v80 ch2 @0, off 64 v100 @0, on 72 v80 ch2 @0, on 76 @0, off 72 v80 ch2 @0");

    transpose.setSemitones (12);
    EXPECT_EQ (through (transpose, ""), "");
    EXPECT_EQ (through (transpose, "off 64 @5"), "off 76 v100 @5");

    transpose.setSemitones (0);
    EXPECT_EQ (through (transpose, ""), "");
}

TEST (NoteModifier, EndsAKeyThatIsPressedTwiceAndDropsLiftsWithoutAPress)
{
    Mapper::TransposeProcessor transpose;

    EXPECT_EQ (through (transpose, "off 60 @0, on 60 @1, on 60 v50 @2, off 60 @3, off 60 @4"),
               "on 60 @1, off 60 v100 @2, on 60 v50 @2, off 60 v50 @3");
}

TEST (NoteLimit, MovesNotesToTheNearerEnd)
{
    Mapper::NoteLimitProcessor limit;
    limit.setLimits ({ 48, 72 });
    EXPECT_EQ (through (limit, "on 47 @0, on 60 @1, on 72 @2, on 73 @3"),
               "on 48 @0, on 60 @1, on 72 @2, on 72 @3");

    limit.setLimits ({ 72, 48 });
    EXPECT_EQ (limit.map (71), 72);
    EXPECT_EQ (limit.map (72), 48);
}

TEST (NoteModifier, StaysBalancedWhileItsRuleChanges)
{
    for (auto seed = 0; seed < 20; ++seed)
    {
        Mapper::TransposeProcessor transpose;
        Mapper::NoteLimitProcessor limit;
        juce::Random random (seed);

        const auto output = inBlocks (randomPlaying (seed, { .lowestNote = 50, .highestNote = 60 }),
                                      randomBlocks (seed, 4000),
                                      [&] (juce::MidiBuffer& block) {
                                          transpose.setSemitones (random.nextInt ({ -80, 80 }));
                                          limit.setLimits ({ random.nextInt (128), random.nextInt (129) });
                                          transpose.process (block);
                                          limit.process (block);
                                      });

        EXPECT_EQ (unbalanced (output), "") << "seed " << seed;
        EXPECT_EQ (stillSounding (output), "") << "seed " << seed;
        EXPECT_FALSE (output.isEmpty());
    }
}
