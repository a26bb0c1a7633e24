#include "Hosts/Song.h"

#include "Support/NoteStreams.h"
#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

namespace Zn::Tests
{
namespace
{
struct Instruments
{
    VST3Host vst3 { VORNEL_VST3_BUNDLE, sampleRate, blockSize };
    LV2Host lv2 { VORNEL_LV2_LIBRARY, sampleRate, blockSize };
};

struct MidiEffects
{
    VST3Host vst3 { VORNEL_MIDI_VST3_BUNDLE, sampleRate, blockSize };
    LV2Host lv2 { VORNEL_MIDI_LV2_LIBRARY, sampleRate, blockSize, LV2Audio::none };
};

TEST (MidiEffect, PlaysTheNotesOfTheInstrumentWithoutAnyAudio)
{
    const Song song { .script = [] (auto& playHead, int block) { playHead.isPlaying = block / 200 != 1; },
                      .numBlocks = 4 * blocksPerSecond,
                      .blockSizes = { 256, 100, 1, 31 } };
    Instruments instruments;
    MidiEffects effects;
    auto& plugin = effects.vst3.getPlugin();

    EXPECT_EQ (plugin.getTotalNumInputChannels() + plugin.getTotalNumOutputChannels(), 0);
    EXPECT_TRUE (plugin.acceptsMidi() && plugin.producesMidi());
    EXPECT_EQ (plugin.getTailLengthSeconds(), 0.0);

    const auto expected = play (instruments.vst3, song);
    EXPECT_GT (expected.onsets.size(), 10u);

    for (const auto& actual : { play (effects.vst3, song), play (effects.lv2, song, Talk::changesInBars) })
    {
        EXPECT_TRUE (sameOnsets (actual, expected));
        EXPECT_EQ (unbalanced (actual.events), "");
        EXPECT_TRUE (actual.sound.empty());
    }
}

TEST (MidiEffect, SharesItsProjectsWithTheInstrument)
{
    Instruments instruments;
    MidiEffects effects;

    auto project = documentIn (instruments.vst3.save());
    project["FlatParams"][0] = (7.0 + 12.0) / 24.0; // a fifth higher
    project["Patterns"]["Patterns"][0]["Pattern"]["Steps"][0]["enabled"] = false;
    juce::MemoryBlock chunk;
    Audio::Plugin::StateChunk::write (project.dump(), chunk);

    instruments.vst3.restore (chunk);
    effects.vst3.restore (instruments.vst3.save());
    effects.lv2.restore (effects.vst3.save());
    instruments.lv2.restore (effects.lv2.save());
    EXPECT_EQ (documentIn (instruments.lv2.save()), documentIn (instruments.vst3.save()));

    const Song song { .numBlocks = blocksPerSecond };
    EXPECT_TRUE (sameOnsets (play (effects.lv2, song, Talk::everyBlock), play (instruments.vst3, song)));
}

TEST (MidiEffect, AllocatesNothingWhileAnLV2HostRunsIt)
{
    LV2Host host { VORNEL_MIDI_LV2_LIBRARY, sampleRate, blockSize, LV2Audio::none };
    play (host, { .numBlocks = blocksPerSecond }, Talk::everyBlock);

    for (auto block = 0; block < blocksPerSecond; ++block)
        EXPECT_EQ (host.heapCallsOfRun (blockSize, {}), 0) << "block " << block;
}
} // namespace
} // namespace Zn::Tests
