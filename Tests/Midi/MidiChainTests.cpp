#include "Midi/HeldNotes.h"
#include "Midi/Mapper/NoteLimitProcessor.h"
#include "Midi/Mapper/TransposeProcessor.h"
#include "Midi/NoteGate.h"
#include "Midi/RowExpander.h"
#include "Midi/StreamFilters.h"
#include "Midi/SustainPedal/SimpleProcessor.h"
#include "Support/MidiText.h"
#include "Support/NoteStreams.h"
#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Zn::Midi;
using namespace Zn::Test;

namespace
{
constexpr auto numSamples = 4000;

/** All stages from the host's MIDI to the output, in the order of a block. Each key also plays a row of a
    pattern, which the keys that are held turn into pitches.
*/
struct Chain
{
    Chain()
    {
        for (auto* buffer : { &scratch, &others, &rows, &pitches })
            buffer->ensureSize (reservedBufferBytes);
    }

    void process (juce::MidiBuffer& midi, int length, bool arpIsOn) noexcept
    {
        keepThreeByteMessages (scratch, midi, length);
        flattenChannels (scratch, midi);
        splitNotesAndPedal (scratch, others, midi);
        liveGate.process (midi, true, true);
        pedal.process (midi);
        transpose.process (midi);
        limit.process (midi);
        playRows (midi);

        if (arpIsOn)
            midi.swapWith (pitches);

        arpGate.process (midi, arpIsOn, false);
    }

    void playRows (const juce::MidiBuffer& midi) noexcept
    {
        EventWriter out (pitches);
        out.clear();

        for (const auto event : midi)
        {
            rows.clear();
            rows.addEvent (event.data, event.numBytes, 0);

            if (isNote (event) && held.follow (event, false))
                table->rebuild (held, limits);

            expander.process (rows, *table, out, event.samplePosition);
        }
    }

    void change (juce::Random& random) noexcept
    {
        limits = { random.nextInt (60), 60 + random.nextInt (60) };
        transpose.setSemitones (random.nextInt ({ -60, 60 }));
        limit.setLimits (limits);
    }

    juce::MidiBuffer scratch, others, rows, pitches;
    NoteGate liveGate, arpGate;
    SustainPedal::SimpleProcessor pedal;
    Mapper::TransposeProcessor transpose;
    Mapper::NoteLimitProcessor limit;
    HeldNotes held;
    PitchLimits limits;
    RowExpander expander;
    std::unique_ptr<RowToPitchTable> table = std::make_unique<RowToPitchTable>();
};

juce::MidiBuffer wildPlaying (int seed)
{
    return randomPlaying (seed, { .lowestNote = 30, .highestNote = 70, .usesPedal = true });
}
} // namespace

TEST (MidiChain, LeavesNothingHangingWhateverChangesInBetween)
{
    for (auto seed = 0; seed < 30; ++seed)
    {
        Chain chain;
        juce::Random random (seed);
        auto blocks = randomBlocks (seed, numSamples);
        blocks.push_back (1); // one more, for what a gate ends when it closes

        const auto output =
            inBlocks (wildPlaying (seed), blocks, [&, block = 0] (juce::MidiBuffer& midi) mutable {
                chain.change (random);
                chain.process (midi, blocks[static_cast<std::size_t> (block++)], random.nextBool());
            });

        EXPECT_EQ (stillSounding (output), "") << "seed " << seed;
    }
}

TEST (MidiChain, GivesTheSameNotesHoweverTheBlockIsCut)
{
    for (const auto arpIsOn : { false, true })
    {
        const auto play = [arpIsOn] (const std::vector<int>& blocks) {
            Chain chain;
            return inBlocks (wildPlaying (1), blocks, [&] (juce::MidiBuffer& midi) {
                chain.process (midi, numSamples, arpIsOn);
            });
        };

        for (auto seed = 0; seed < 10; ++seed)
            EXPECT_EQ (text (play (randomBlocks (seed, numSamples))), text (play ({ numSamples }))) << seed;

        EXPECT_EQ (unbalanced (play ({ numSamples })), "");
    }
}

TEST (MidiChain, NeitherAllocatesNorWaits)
{
    Chain chain;
    juce::Random random (1);
    juce::MidiBuffer midi; // the host's, used again for each block
    midi.ensureSize (reservedBufferBytes);

    for (auto seed = 0; seed < 10; ++seed)
    {
        const auto input = wildPlaying (seed);
        midi.clear();
        midi.addEvents (input, 0, -1, 0);

        const ExpectRealTimeSafe guard ("round " + std::to_string (seed));
        chain.change (random);
        chain.process (midi, numSamples, seed % 3 != 0);
    }
}
