#include "Sequencer/EngineRig.h"
#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <set>

namespace Zn::Tests
{
namespace
{
constexpr double ppqPerSample = 1.0 / 128.0; // coarse, and without rounding however the song is cut

/** What a listener would have in his ear: on and off of each row, in order. */
struct Heard
{
    int sample = 0, velocity = 0; // velocity 0: ended
};

using HeardRows = std::map<int, std::vector<Heard>>;

/** Leaves out the note-offs of rows that did not sound. */
HeardRows heardRows (const juce::MidiBuffer& rows)
{
    HeardRows result;

    for (const auto event : rows)
    {
        const auto message = event.getMessage();
        auto& row = result[message.getNoteNumber()];
        const auto sounds = ! row.empty() && row.back().velocity > 0;

        if (message.isNoteOn())
            row.push_back ({ event.samplePosition, message.getVelocity() });
        else if (sounds)
            row.push_back ({ event.samplePosition, 0 });
    }

    return result;
}

std::set<int> sounding (const juce::MidiBuffer& rows)
{
    std::set<int> result;

    for (const auto& [row, events] : heardRows (rows))
        if (! events.empty() && events.back().velocity > 0)
            result.insert (row);

    return result;
}

/** Like a drawing: steps on a grid, none on top of another, some with a chance, some swung off the grid. */
Sequencer::RenderedSlot drawing (juce::Random& random, bool withChance = true)
{
    const double lengths[] = { 0.5, 1.0, 4.0 / 3.0, 4.0 };
    const auto length = lengths[random.nextInt (4)];
    const auto columns = 1 + random.nextInt (8);
    const auto width = length / columns;
    Notes notes;

    for (auto row = 60; row < 64; ++row)
        for (auto column = 0; column < columns; ++column)
            if (random.nextInt (3) > 0)
            {
                auto step = note (row, column * width + 0.1 * width * random.nextDouble(), width * 0.9);
                step.time.length -= step.time.start - column * width;
                step.event.chance = withChance && random.nextBool() ? random.nextFloat() : 1.0f;
                step.event.spreadHigh = 0.5f * random.nextFloat();
                notes.push_back (step);
            }

    return loop (length, notes);
}

/** Something that happens to a player in the middle of a song. */
void interfere (EngineRig& rig,
                juce::Random& random,
                const std::function<Sequencer::RenderedSlot()>& makeSlot)
{
    const auto what = random.nextInt (8);
    const auto slot = random.nextInt (Sequencer::numSlots);

    switch (what)
    {
    case 0:
        return rig.draw (rig.live().heard, makeSlot());
    case 1:
        return rig.draw (slot, makeSlot());
    case 2:
        return rig.ask (slot);
    case 3:
        return rig.jumpTo (random.nextInt (1 << 20) / 4096.0 - 4.0);
    case 4:
        return rig.engine.requestRestart();
    case 5:
        rig.isPlaying = ! rig.isPlaying;
        return;
    case 6:
        rig.live().enable = random.nextBool();
        return;
    default:
        rig.live().quantum = std::ldexp (1.0, slot - 3);
        return;
    }
}

/** Plays a song in which the same things happen at the same samples, whatever the sizes of the blocks. */
juce::MidiBuffer playSong (int seed, const std::function<int()>& nextBlockSize)
{
    juce::Random random (seed);
    const auto makeSlot = [&random] { return drawing (random); };
    EngineRig rig { makeSlot() };
    rig.ppqPerSample = ppqPerSample;
    juce::MidiBuffer all;
    auto start = 0;

    for (auto scene = 0; scene < 12; ++scene)
    {
        for (auto left = 40 + random.nextInt (200); left > 0;)
        {
            const auto length = std::min (left, nextBlockSize());
            all.addEvents (rig.play (length), 0, length, start);
            start += length;
            left -= length;
        }

        interfere (rig, random, makeSlot);
    }

    return all;
}

/** The first place where two songs differ: empty when they have the same notes, each at most one sample later or
    earlier in the second, and each row ends before it starts again.
*/
std::string difference (HeardRows whole, HeardRows cut)
{
    for (auto row = 0; row < 128; ++row)
    {
        const auto &a = whole[row], &b = cut[row];

        for (std::size_t i = 0; i < std::max (a.size(), b.size()); ++i)
            if (i >= a.size() || i >= b.size() || a[i].velocity != b[i].velocity
                || std::abs (a[i].sample - b[i].sample) > 1 || (a[i].velocity > 0) != (i % 2 == 0))
                return "row " + std::to_string (row) + ", event " + std::to_string (i);
    }

    return {};
}
} // namespace

/** A drawn note starts and ends once however the song is cut. A moment that falls between the last sample of
    one call and the first of the next is heard at the latter, so it may move by one sample: no more is promised,
    and for notes that are shorter than a sample not even that.
*/
TEST (PatternEngineLaws, PlayTheSameNotesHoweverTheBlocksAreCut)
{
    for (auto seed = 0; seed < 200; ++seed)
    {
        const auto whole = heardRows (playSong (seed, [] { return 100000; }));
        juce::Random random (seed);

        const std::function<int()> blockSizes[] { [] { return 1; },
                                                  [] { return 64; },
                                                  [&] { return 1 + random.nextInt (50); } };

        for (const auto& nextBlockSize : blockSizes)
            EXPECT_EQ (difference (whole, heardRows (playSong (seed, nextBlockSize))), "") << "seed " << seed;
    }
}

TEST (PatternEngineLaws, PlayLoopsOfAnyLengthAgainstABlock)
{
    constexpr auto numBlocks = 50;

    // Loops shorter than a sample, of a few samples, as long as the block, and longer by a little.
    for (auto length : { 0.001, 0.003, 0.02, 0.25, 64 * ppqPerSample, 65 * ppqPerSample, 10.0 })
    {
        EngineRig rig {
            loop (length, Notes { note (60, 0.0, length * 0.5), note (61, length * 0.5, length * 0.5) })
        };
        rig.ppqPerSample = ppqPerSample;
        juce::MidiBuffer all;

        for (auto block = 0; block < numBlocks; ++block)
            all.addEvents (rig.play (64), 0, -1, block * 64);

        const auto passes = static_cast<int> (numBlocks * 64 * ppqPerSample / length);
        auto rows = heardRows (all);

        for (auto row : { 60, 61 })
            if (length > 3.0 * ppqPerSample)
            {
                EXPECT_NEAR (static_cast<int> (rows[row].size()), 2 * passes, 2) << length << ", row " << row;
            }

        rig.isPlaying = false;
        all.addEvents (rig.play (1), 0, -1, numBlocks * 64);
        EXPECT_TRUE (sounding (all).empty()) << length;
    }
}

TEST (PatternEngineLaws, CallNeitherTheHeapNorALock)
{
    juce::Random random (3);
    EngineRig rig { loop (0.05, steps ("x.x.", 60, 0.0125), steps (".x.x", 61, 0.0125)) };
    rig.draw (1, drawing (random));
    rig.live().quantum = 0.25;
    rig.engine.prepare (512);

    std::vector<double> positions (512);
    juce::MidiBuffer rows;
    rows.ensureSize (32768);

    for (auto block = 0; block < 50; ++block)
    {
        for (std::size_t i = 0; i < positions.size(); ++i)
            positions[i] = static_cast<double> (block) * 4.0 + static_cast<double> (i) * ppqPerSample;

        if (block % 7 == 0)
            rig.ask (block % 2);

        rows.clear();
        const ExpectRealTimeSafe guard { "block " + std::to_string (block) };
        rig.engine.requestRestart();
        rig.engine.run ({ positions, block % 10 != 9, block % 5 == 0, false }, rig.frame, rows);
    }
}

TEST (PatternEngineLaws, SurviveNumbersThatMakeNoSense)
{
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    const double values[] { std::nan (""), infinity, -infinity,
                            1.0e308,       -1.0e308, std::numeric_limits<double>::denorm_min(),
                            -1.0,          0.0,      0.25,
                            0.5,           3.0 };

    for (auto seed = 0; seed < 300; ++seed)
    {
        juce::Random random (seed);
        const auto value = [&] { return values[random.nextInt (static_cast<int> (std::size (values)))]; };
        const auto floatValue = [&] { return static_cast<float> (std::clamp (value(), -1.0e30, 1.0e30)); };
        auto slot = loop (value());
        slot.looping = random.nextBool();

        for (auto i = 0; i < 40; ++i)
        {
            auto hostile = note (random.nextInt (300) - 80, value(), value(), floatValue());
            hostile.event.channel = random.nextInt (40) - 10;
            hostile.event.chance = floatValue();
            hostile.event.spreadLow = floatValue();
            hostile.event.spreadHigh = floatValue();
            slot.events.notes.push_back (hostile); // unsorted
            slot.events.sequences.push_back ({ { value(), value() }, nullptr, true });
        }

        EngineRig rig { slot };
        rig.live().quantum = value();
        rig.live().heard = random.nextInt();
        juce::MidiBuffer all;

        for (auto block = 0; block < 20; ++block)
        {
            rig.ask (random.nextInt());
            rig.jumpTo (random.nextBool() ? value() : random.nextDouble());
            all.addEvents (rig.play (random.nextInt (70)), 0, -1, block * 100);
        }

        rig.isPlaying = false;
        all.addEvents (rig.playAt ({ 0.0 }), 0, -1, 20 * 100);

        for (const auto event : all)
            EXPECT_TRUE (event.numBytes == 3 && event.data[1] < 128 && event.data[2] < 128)
                << "seed " << seed;

        EXPECT_TRUE (rig.playAt ({ 0.0 }).isEmpty()) << "seed " << seed;
    }
}
} // namespace Zn::Tests
