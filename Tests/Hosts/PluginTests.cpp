#include "Hosts/Song.h"

#include "Support/NoteStreams.h"
#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

namespace Zn::Tests
{
namespace
{
constexpr auto samplesPerSixteenth = 6000; // at 120 quarter notes a minute and 48 kHz

/** The pitch that a step of a new instance's pattern plays over a held chord of C, E and G. */
int pitchOfStep (int step)
{
    constexpr std::array pitches { 60, 64, 67, 72, 76, 72, 67, 64, 67, 72, 76, 79, 84, 76, 72, 67 };
    return pitches[static_cast<size_t> (step) % pitches.size()];
}

Performance::Onset stepAt (int step, int sample)
{
    return { sample, pitchOfStep (step) };
}

/** Sixteenth after sixteenth, from a step that starts at sample 0. */
Performance onTheGrid (int firstStep, int numSamples)
{
    Performance performance;

    for (auto step = 0; step * samplesPerSixteenth < numSamples; ++step)
        performance.onsets.push_back (stepAt (firstStep + step, step * samplesPerSixteenth));

    return performance;
}

class Plugin : public testing::Test
{
protected:
    Performance playLV2 (const Song& song, Talk talk)
    {
        LV2Host host { VORNEL_LV2_LIBRARY, sampleRate, blockSize };
        return play (host, song, talk);
    }

    Performance playVST3 (const Song& song)
    {
        VST3Host host { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
        return play (host, song);
    }

    void expectEveryHostPlays (const Song& song, const Performance& expected)
    {
        EXPECT_TRUE (sameOnsets (playVST3 (song), expected)) << "VST3";
        EXPECT_TRUE (sameOnsets (playLV2 (song, Talk::everyBlock), expected)) << "LV2, told in every block";
        EXPECT_TRUE (sameOnsets (playLV2 (song, Talk::changesInBars), expected))
            << "LV2, told changes in bars";
        EXPECT_TRUE (sameOnsets (playLV2 (song, Talk::changesInFrames), expected))
            << "LV2, told changes in samples";
    }
};

TEST_F (Plugin, PlaysTheGridInEveryHost)
{
    const Song song { .numBlocks = 12 * blocksPerSecond };
    expectEveryHostPlays (song, onTheGrid (0, song.numBlocks * blockSize));
}

TEST_F (Plugin, StartsWithTheStepOfTheBeatWhereTheSongStarts)
{
    const auto fromBarFiveBeatThree = [] (TestPlayHead& playHead, int block) {
        if (block != 0)
            return;

        playHead.jumpTo (4 * 4.0 + 2.0);
        playHead.samples += 1234567.0; // the song was slower up to here, so samples do not tell the beat
    };

    const Song song { .script = fromBarFiveBeatThree, .numBlocks = 2 * blocksPerSecond };
    const auto expected = onTheGrid (8, song.numBlocks * blockSize);

    EXPECT_TRUE (sameOnsets (playVST3 (song), expected));
    EXPECT_TRUE (sameOnsets (playLV2 (song, Talk::everyBlock), expected));
    EXPECT_TRUE (sameOnsets (playLV2 (song, Talk::changesInBars), expected));
}

TEST_F (Plugin, JumpsOnceWhenTheSongDoes)
{
    constexpr auto jump = 500; // block
    const auto threeBeatsOn = [] (TestPlayHead& playHead, int block) {
        if (block == jump)
            playHead.jumpTo (playHead.ppq + 3.0);
    };

    const Song song { .script = threeBeatsOn, .numBlocks = 600 };

    // Three beats are twelve of the sixteenths, which stay where they were.
    auto expected = onTheGrid (0, song.numBlocks * blockSize);

    for (auto step = 0; auto& onset : expected.onsets)
    {
        if (onset.sample >= jump * blockSize)
            onset = stepAt (step + 12, onset.sample);

        ++step;
    }

    const auto cutShort = [&] (Performance performance) {
        // The step that the jump lands in the middle of may sound for its rest.
        std::erase_if (performance.onsets, [] (auto onset) { return onset.sample == jump * blockSize; });
        return performance;
    };

    EXPECT_TRUE (sameOnsets (cutShort (playVST3 (song)), expected));

    for (auto talk : { Talk::everyBlock, Talk::changesInBars, Talk::changesInFrames })
        EXPECT_TRUE (sameOnsets (cutShort (playLV2 (song, talk)), expected)) << static_cast<int> (talk);
}

TEST_F (Plugin, FollowsTempoStopAndStartAlikeInEveryHost)
{
    struct Row
    {
        const char* name;
        Song song;
        bool samplesTellTheBeat = false; // only of a song that has one tempo and stays where it is
    };

    const Row rows[] = {
        { "tempo changes",
          { .script = [] (auto& playHead, int block) { playHead.setTempo (60.0 + block / 50 * 7.3); },
            .numBlocks = 800 } },
        { "stop for a second, then on",
          { .script = [] (auto& playHead, int block) { playHead.isPlaying = block / blocksPerSecond != 2; },
            .numBlocks = 5 * blocksPerSecond },
          true },
        { "loop of a bar",
          { .script = [] (auto& playHead, int) { playHead.setLoop (0.0, 4.0); },
            .numBlocks = 7 * blocksPerSecond },
          true },
        { "loop of three beats, later in the song",
          { .script =
                [] (auto& playHead, int block) {
                    playHead.setLoop (9.0, 12.0);

                    if (block == 0)
                        playHead.jumpTo (9.0);
                },
            .numBlocks = 7 * blocksPerSecond,
            .blockSizes = { 240 } } }, // the loop ends with a block: an LV2 host cannot tell that it ends inside
        { "stopped from the start",
          { .script = [] (auto& playHead, int) { playHead.stop(); }, .numBlocks = 2 * blocksPerSecond } },
        { "stop, move, start",
          { .script =
                [] (auto& playHead, int block) {
                    playHead.isPlaying = block < 200 || block > 300;

                    if (block == 250)
                        playHead.jumpTo (16.5);
                },
            .numBlocks = 500 } },
        { "blocks of any size",
          { .script = [] (auto& playHead, int block) { playHead.setTempo (block < 300 ? 133.0 : 171.0); },
            .numBlocks = 900,
            .blockSizes = { 256, 100, 0, 156, 1, 255, 0, 31 } } },
    };

    for (const auto& row : rows)
    {
        const auto expected = playVST3 (row.song);
        EXPECT_GT (expected.onsets.size(), 5u) << row.name;
        EXPECT_EQ (unbalanced (expected.events), "") << row.name;

        for (auto talk : { Talk::everyBlock, Talk::changesInBars, Talk::changesInFrames })
        {
            if (talk == Talk::changesInFrames && ! row.samplesTellTheBeat)
                continue;

            const auto actual = playLV2 (row.song, talk);
            EXPECT_TRUE (sameOnsets (actual, expected)) << row.name << ", talk " << static_cast<int> (talk);
            EXPECT_EQ (unbalanced (actual.events), "") << row.name << ", talk " << static_cast<int> (talk);
        }
    }
}

TEST_F (Plugin, SendsTheArpeggioAsMidiAndSoundsIt)
{
    const Song song { .numBlocks = blocksPerSecond };

    for (const auto& performance : { playVST3 (song), playLV2 (song, Talk::changesInBars) })
    {
        EXPECT_EQ (unbalanced (performance.events), "");
        EXPECT_FALSE (performance.onsets.empty());
        EXPECT_TRUE (sameSound (performance, performance)) << "silent";

        for (const auto event : performance.events)
            EXPECT_EQ (event.getMessage().getChannel(), 1);
    }
}

TEST_F (Plugin, PlaysAProjectOfTheOtherFormat)
{
    const Song song { .numBlocks = 2 * blocksPerSecond };
    VST3Host vst3 { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    LV2Host lv2 { VORNEL_LV2_LIBRARY, sampleRate, blockSize };

    // Something that neither plays by itself: every second step of the pattern, a fifth higher.
    auto project = documentIn (vst3.save());
    auto& steps = project["Patterns"]["Patterns"][0]["Pattern"]["Steps"];

    for (std::size_t i = 1; i < steps.size(); i += 2)
        steps[i]["enabled"] = false;

    project["FlatParams"][0] = (7.0 + 12.0) / 24.0;
    juce::MemoryBlock chunk;
    Audio::Plugin::StateChunk::write (project.dump(), chunk);

    vst3.restore (chunk);
    lv2.restore (vst3.save());
    EXPECT_EQ (documentIn (lv2.save()), documentIn (vst3.save()));

    auto expected = onTheGrid (0, song.numBlocks * blockSize);

    for (auto& onset : expected.onsets)
        onset.pitch += 7;

    std::erase_if (expected.onsets, [] (auto onset) { return onset.sample / samplesPerSixteenth % 2 == 1; });
    EXPECT_TRUE (sameOnsets (play (vst3, song), expected));
    EXPECT_TRUE (sameOnsets (play (lv2, song, Talk::changesInBars), expected));

    VST3Host back { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    back.restore (lv2.save());
    EXPECT_EQ (documentIn (back.save()), documentIn (lv2.save()));
}

TEST_F (Plugin, EndsItsNotesAndHandsTheKeysThroughWhileBypassed)
{
    LV2Host lv2 { VORNEL_LV2_LIBRARY, sampleRate, blockSize };
    VST3Host vst3 { VORNEL_VST3_BUNDLE, sampleRate, blockSize };

    const auto check = [] (auto&& run, auto&& setBypassed) {
        juce::MidiBuffer events;
        auto start = 0;
        const auto playOn = [&] (int numBlocks, const juce::MidiBuffer& keys) {
            juce::MidiBuffer played;

            for (auto block = 0; block < numBlocks; ++block, start += blockSize)
                played.addEvents (run (block == 0 ? keys : juce::MidiBuffer {}), 0, -1, start);

            events.addEvents (played, 0, -1, 0);
            return played;
        };

        juce::MidiBuffer chord, key, release;
        chord.addEvent (juce::MidiMessage::noteOn (1, 60, juce::uint8 { 100 }), 0);
        key.addEvent (juce::MidiMessage::noteOn (1, 90, juce::uint8 { 100 }), 7);
        release.addEvent (juce::MidiMessage::noteOff (1, 90), 7);
        release.addEvent (juce::MidiMessage::noteOff (1, 60), 7);

        EXPECT_GT (playOn (blocksPerSecond, chord).getNumEvents(), 5);

        setBypassed (true);
        playOn (1, {});
        EXPECT_EQ (stillSounding (events), "");
        EXPECT_EQ (playOn (blocksPerSecond, key).getNumEvents(), 1) << "the key and no pattern";

        setBypassed (false);
        playOn (blocksPerSecond, release);
        playOn (blocksPerSecond, {});
        EXPECT_EQ (stillSounding (events), "");
    };

    check ([&] (const auto& keys) { return lv2.run (blockSize, keys, {}); },
           [&] (bool bypassed) { lv2.setEnabled (! bypassed); });
    check ([&] (const auto& keys) { return vst3.run (blockSize, keys); },
           [&] (bool bypassed) { vst3.getPlugin().getBypassParameter()->setValue (bypassed ? 1.0f : 0.0f); });
}

TEST_F (Plugin, AllocatesNothingWhileAnLV2HostRunsIt)
{
    LV2Host host { VORNEL_LV2_LIBRARY, sampleRate, blockSize };
    play (host, { .numBlocks = blocksPerSecond }, Talk::everyBlock);

    const juce::MidiBuffer noKeys;
    const std::vector<LV2Message> start { { 0, { .frame = 0.0, .speed = 1.0, .beatsPerMinute = 120.0 } } };
    const std::vector<LV2Message> nothing;

    for (auto block = 0; block < blocksPerSecond; ++block)
        EXPECT_EQ (host.heapCallsOfRun (blockSize, block == 10 ? start : nothing), 0) << "block " << block;
}
} // namespace
} // namespace Zn::Tests
