#include "ExampleFiles.h"
#include "MidiBytes.h"
#include "TestProcessor.h"

#include "Render/Renderer.h"
#include "Support/MidiText.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Zn::Render;
using namespace Zn::Tests;

namespace
{
/** Keeps the whole render. */
struct Recorder final : OutputWriter
{
    void write (const RenderedBlock& block) override
    {
        events.addEvents (block.midi, 0, -1, static_cast<int> (block.firstSample));

        for (auto i = 0; i < block.audio.getNumSamples(); ++i)
            audio.push_back (block.audio.getSample (1, i));
    }

    void finish() override {}

    juce::MidiBuffer events;
    std::vector<float> audio;
};

Recorder render (TestProcessor& processor,
                 const MidiFileSource& source,
                 double sampleRate,
                 Renderer::Setup setup,
                 std::optional<Loop> loop = {})
{
    const SongTimeline timeline (source.getTempoMap(),
                                 source.getMeterMap(),
                                 source.getLengthQuarters(),
                                 sampleRate,
                                 loop);
    Recorder recorder;
    OutputWriter* const writers[] { &recorder };
    Renderer (processor, source, timeline, setup).run (writers, [] (auto, auto) {});
    return recorder;
}

/** At 8000 samples a second and 120 quarters a minute a quarter has 4000 samples. */
constexpr double rate = 8000.0;

std::string played (const Bytes& file, std::optional<Loop> loop)
{
    TestProcessor processor;
    return text (render (processor, MidiFileSource (file), rate, {}, loop).events);
}

// C from 0 to 2, E from 1 to 3, G from 3 to 4, and the end of the track at 5 quarters
const Bytes threeNotes = midiFile (
    0, 1, { { 0, 0x90, 60, 100, 1, 64, 100, 1, 60, 0, 1, 64, 0, 0, 67, 100, 1, 67, 0, 1, 0xff, 0x2f, 0 } });
} // namespace

TEST (Renderer, DrivesTheProcessorAsAHostDoes)
{
    TestProcessor processor;
    Renderer::Setup setup { .blockSizes = BlockSizes::random (7, 300), .tailSamples = 1000 };
    const auto audio = render (processor, MidiFileSource (threeNotes), rate, setup).audio;

    EXPECT_EQ (processor.calls, (std::vector<std::string> { "prepare offline", "release" }));
    EXPECT_EQ (processor.preparedRate, rate);
    EXPECT_EQ (processor.preparedSize, 300);
    EXPECT_LE (*std::ranges::max_element (processor.blockSizes), 300);
    EXPECT_GT (std::ranges::count_if (processor.blockSizes, [] (auto size) { return size < 30; }), 0);
    EXPECT_EQ (audio.size(), 5 * 4000u + 1000u);
    EXPECT_EQ (processor.getPlayHead(), nullptr);
}

TEST (Renderer, GivesTheSameForAnyBlocks)
{
    const MidiFileSource source (exampleFile ("gymnopedie-1.mid"));

    for (const auto& loop : { std::optional<Loop>(), std::optional (Loop { 11.3, 14.7 }) })
    {
        TestProcessor whole;
        const auto expected =
            render (whole, source, 44100.0, { .blockSizes = BlockSizes::fixed (8192) }, loop);

        for (const auto& sizes :
             { BlockSizes::fixed (1), BlockSizes::fixed (513), BlockSizes::random (3, 2000) })
        {
            TestProcessor cut;
            const auto found = render (cut, source, 44100.0, { .blockSizes = sizes }, loop);
            EXPECT_TRUE (found.audio == expected.audio) << sizes.getLargest();
            EXPECT_TRUE (text (found.events) == text (expected.events)) << sizes.getLargest();
        }
    }
}

TEST (Renderer, PlaysTheNotesOfALoopOnEachPassAndReleasesThemWhereItWraps)
{
    EXPECT_EQ (played (threeNotes, {}),
               "on 60 @0, on 64 @4000, on 60 v0 @8000, on 64 v0 @12000, on 67 @12000, on 67 v0 @16000");

    EXPECT_EQ (played (threeNotes, Loop { 0.5, 1.5 }),
               "on 60 @0, on 64 @4000, off 60 @6000, off 64 @6000, on 64 @8000, off 64 @10000, on 64 @12000, "
               "off 64 @14000, on 64 @16000, off 64 @18000")
        << "the sixth pass would start with the end of the file";

    EXPECT_EQ (played (threeNotes, Loop { 1.0, 9.0 }), played (threeNotes, {})) << "the end is never reached";
}

TEST (Renderer, ReleasesKeysAndPedalsThatTheFileLeavesDown)
{
    const auto hanging =
        midiFile (0, 1, { { 0, 0xb4, 64, 127, 0, 0x94, 60, 100, 0, 60, 100, 1, 0xff, 0x2f, 0 } });

    EXPECT_EQ (played (hanging, {}),
               "cc 64 127 ch5 @0, on 60 ch5 @0, on 60 ch5 @0, off 60 ch5 @4000, off 60 ch5 @4000, cc 64 0 "
               "ch5 @4000");
}

TEST (Renderer, TellsThePositionOfEachBlock)
{
    // 3/4 from the start, and 60 quarters a minute from the fourth on
    const Bytes track { 0, 0xff, 0x58, 4, 3, 2, 24, 8, 4, 0xff, 0x51, 3, 0x0f, 0x42, 0x40, 4, 0xff, 0x2f, 0 };
    const MidiFileSource waltz (midiFile (0, 1, { track }));
    TestProcessor playing, stopped, none;
    const auto blocks = BlockSizes::fixed (2000);
    render (playing, waltz, rate, { .blockSizes = blocks }, Loop { 2.0, 6.0 });
    render (stopped, waltz, rate, { .blockSizes = blocks, .clock = HostClock::Mode::stopped });
    render (none, waltz, rate, { .blockSizes = blocks, .clock = {} });

    const std::tuple<std::size_t, double, double, double, juce::int64> rows[] {
        { 0, 0.0, 0.0, 120.0, 0 },
        { 7, 3.5, 3.0, 120.0, 14000 },
        { 9, 4.25, 3.0, 60.0, 18000 },
        { 16, 2.0, 0.0, 120.0, 8000 },
        { 21, 4.25, 3.0, 60.0, 18000 }
    };

    for (const auto& [block, quarters, barStart, bpm, samples] : rows)
    {
        const auto& position = *playing.positions[block];
        EXPECT_TRUE (position.getIsPlaying());
        EXPECT_DOUBLE_EQ (*position.getPpqPosition(), quarters) << block;
        EXPECT_DOUBLE_EQ (*position.getPpqPositionOfLastBarStart(), barStart) << block;
        EXPECT_DOUBLE_EQ (*position.getBpm(), bpm) << block;
        EXPECT_EQ (*position.getTimeInSamples(), samples) << block;
        EXPECT_EQ (position.getTimeSignature()->numerator, 3) << block;
        EXPECT_EQ (position.getLoopPoints()->ppqEnd, 6.0);
        EXPECT_TRUE (position.getIsLooping());
    }

    for (const auto& position : stopped.positions)
    {
        EXPECT_FALSE (position->getIsPlaying());
        EXPECT_EQ (*position->getPpqPosition(), 0.0);
        EXPECT_EQ (*position->getTimeInSamples(), 0);
        EXPECT_EQ (*position->getBpm(), 120.0);
    }

    EXPECT_FALSE (none.positions.front().hasValue());
}
