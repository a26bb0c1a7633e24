#include "Plugin/ProcessorFixture.h"

#include "Midi/EventWriter.h"
#include "Support/Lateness.h"
#include "Support/RealTimeGuard.h"

#include <gmock/gmock.h>

#include <cmath>
#include <ctime>
#include <limits>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using Midi::ShortMessage;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::ExpectRealTimeSafe;
using Tests::isAtMostOneLate;
using Tests::text;

/** Many events in time order: as a broken controller or a merged multitrack sends them. */
juce::MidiBuffer flood (int numEvents, int numSamples, const std::function<ShortMessage (int)>& messageAt)
{
    juce::MidiBuffer buffer;
    Midi::EventWriter out (buffer);

    for (auto i = 0; i < numEvents; ++i)
        out.add (messageAt (i), static_cast<int> (std::int64_t { i } * numSamples / numEvents));

    return buffer;
}

double secondsOfProcessor() noexcept
{
    return static_cast<double> (std::clock()) / CLOCKS_PER_SEC;
}
} // namespace

TEST (HostBlocks, OfNoSamplesLoseNothing)
{
    ProcessorFixture f;
    f.drawQuarters (0, 0);
    TestHost host (f.processor);
    juce::AudioBuffer<float> nothing (2, 0);

    const auto sendWithNothing = [&] (const char* text, bool isBypassed = false) {
        auto midi = events (text);

        if (isBypassed)
            f.processor.processBlockBypassed (nothing, midi);
        else
            f.processor.processBlock (nothing, midi);

        EXPECT_TRUE (midi.isEmpty()) << text;
    };

    for (auto i = 0; i < 20; ++i)
        sendWithNothing ("");

    sendWithNothing ("cc 64 127 ch4 @0, on 60 @0, on 64 @7, hex F0 01 02 F7 @8");
    sendWithNothing ("off 60 @0");
    f.set ("Transpose", "2");
    sendWithNothing ("off 64 @0", true);
    host.run (quarter);
    EXPECT_EQ (host.noteOns(), "62@0") << "the pedal came first, and holds both keys";

    sendWithNothing ("cc 64 0 @3");
    host.run (bar);
    EXPECT_EQ (host.unbalanced(), "");
    EXPECT_THAT (startsOf (host, 62), ElementsAre (0)) << "the pedal's lift was not lost";
}

TEST (HostBlocks, FarLargerThanPreparedPlayTheSame)
{
    ProcessorFixture f;
    f.drawSteps (0, 16, 0, 0.5);
    TestHost host (f.processor, 48000.0, 64);
    host.send (events ("on 60 @0, off 60 @200000, on 62 @200000"));

    std::vector<int> expected60, expected62;

    for (const auto size : { 64, 128, 640, 64, 44100, 1, 131072, 64, 100000 })
        host.runBlock (size);

    for (auto start = 0; start < host.getPosition(); start += quarter / 4)
        (start < 200000 ? expected60 : expected62).push_back (start);

    EXPECT_THAT (startsOf (host, 60), testing::Pointwise (isAtMostOneLate(), expected60));
    EXPECT_THAT (startsOf (host, 62), testing::Pointwise (isAtMostOneLate(), expected62));

    // What has grown once is large enough.
    juce::AudioBuffer<float> audio (2, 131072);
    juce::MidiBuffer midi;
    midi.ensureSize (Midi::reservedBufferBytes);

    const ExpectRealTimeSafe watched ("a large block that is not the first");
    f.processor.processBlock (audio, midi);
}

/** What the synth, its echo and its gains make of a pattern is the same to the sample in blocks of any size, as long as no
    step starts on a block's last sample: such a one sounds with the next block, one sample late.
*/
TEST (HostBlocks, SoundTheSameInAnySizes)
{
    constexpr auto prepared = 64;

    const auto play = [] (const std::vector<int>& sizes) {
        ProcessorFixture f;
        f.drawSteps (0, 8, 0, 0.75);
        f.set ("Delay-Mix", "0.4");
        f.set ("Delay-Feedback", "0.5");
        f.set ("Filter-Cutoff", "900");
        TestHost host (f.processor, 48000.0, prepared);
        host.send (events ("on 48 @0, on 60 @0, hex E0 00 50 @5000, off 48 @30001, on 55 @30001"));
        std::vector<float> sound;

        for (std::size_t i = 0; host.getPosition() < bar + quarter; ++i)
        {
            host.runBlock (static_cast<int> (
                std::min<std::int64_t> (sizes[i % sizes.size()], bar + quarter - host.getPosition())));
            const auto* left = host.getAudio().getReadPointer (0);
            sound.insert (sound.end(), left, left + host.getAudio().getNumSamples());
        }

        return sound;
    };

    const auto expected = play ({ prepared });
    ASSERT_GT (*std::ranges::max_element (expected), 0.01f);

    for (const auto& sizes : { std::vector { 3, 31, 64, 1024 },
                               std::vector { 1024 },
                               std::vector { 2 * prepared, 10 * prepared, 33333, 7 } })
    {
        const auto sound = play (sizes);
        auto difference = 0.0f;

        for (std::size_t i = 0; i < expected.size(); ++i)
            difference = std::max (difference, std::abs (sound[i] - expected[i]));

        EXPECT_LT (difference, 1.0e-5f) << testing::PrintToString (sizes);
    }
}

TEST (HostBlocks, KeepTimeAtEverySampleRate)
{
    ProcessorFixture f; // one processor for all: what one rate leaves behind must not disturb the next
    f.drawSteps (0, 32, 0, 0.5);

    for (const auto rate : { 44100.0, 192000.0, 8000.0, 48000.0, 384000.0, 11025.5, 44100.0 })
        for (const auto tempo : { 60.0, 133.7, 999.0 })
        {
            TestHost host (f.processor, rate, 512, tempo);
            f.processor.prepareToPlay (rate, 512);
            host.send (events ("on 60 @0"));

            const auto samplesInStep = 4.0 / 32.0 * 60.0 * rate / tempo;
            host.run (std::llround (64.0 * samplesInStep) - 2);

            const auto starts = startsOf (host, 60);
            ASSERT_EQ (starts.size(), 64u) << tempo << " at " << rate;

            for (size_t i = 0; i < starts.size(); ++i)
                EXPECT_NEAR (starts[i], double (i) * samplesInStep, 1.001)
                    << "step " << i << ", " << tempo << " at " << rate;

            host.send (events ("off 60 @0"));
            host.run (std::llround (4.0 * samplesInStep));
            EXPECT_THAT (host.getSounding(), IsEmpty()) << tempo << " at " << rate;
        }
}

TEST (HostBlocks, TakeEventsFromOutsideThemselves)
{
    ProcessorFixture f;
    f.set ("Arp-Active", "Off");
    juce::AudioBuffer<float> audio (2, 64);

    auto midi = events ("on 60 @-2147483648, on 61 @-1, off 60 @64, off 61 @2147483647");
    f.processor.processBlock (audio, midi);
    EXPECT_EQ (text (midi), "on 60 @0, on 61 @0, off 60 v100 @63, off 61 v100 @63");
}

TEST (HostBlocks, DropLongMessagesWithoutTouchingTheHeap)
{
    ProcessorFixture f;
    f.set ("Arp-Active", "Off");
    juce::AudioBuffer<float> audio (2, 512);

    const std::vector<std::uint8_t> longest (65535, 0xF0);

    for (auto i = 0; i < 5; ++i)
    {
        auto midi =
            events ("on 60 ch16 @1, hex C1 05 @2, hex D1 05 @2, hex F1 05 @2, hex FE @2, off 60 ch16 @500");
        ASSERT_TRUE (midi.addEvent (longest.data(), static_cast<int> (longest.size()), 250));

        {
            const ExpectRealTimeSafe watched ("a block with a long message");
            f.processor.processBlock (audio, midi);
        }

        EXPECT_EQ (text (midi), "on 60 @1, off 60 v100 @500");
    }
}

/** Twice the events may take twice the time and a little more; a search through the block for each of them would
    take four times as long.
*/
TEST (HostBlocks, TakeFloodsOfEventsInEvenTime)
{
    struct Row
    {
        const char *name, *arp;
        std::function<ShortMessage (int)> messageAt;
    };

    const auto controller = [] (int i) {
        return ShortMessage { { 0xB0, 1, static_cast<std::uint8_t> (i % 128) } };
    };
    const auto pedal = [] (int i) {
        return ShortMessage { { 0xB3, 64, static_cast<std::uint8_t> (i % 2 * 127) } };
    };
    const auto keys = [] (int i) {
        const auto note = i / 2 % 128;
        return i % 2 == 0 ? ShortMessage::noteOn (1 + i % 16, note, 90) : ShortMessage::noteOff (1, note);
    };

    const Row rows[] = {
        { "keys through the arp", "On", keys },
        { "keys directly", "Off", keys },
        { "keys without an end", "On", [] (int i) { return ShortMessage::noteOn (1, i % 128, 90); } },
        { "controllers", "On", controller },
        { "keys among controllers",
          "Off",
          [&] (int i) { return i % 4 < 2 ? keys (i / 4 * 2 + i % 2) : controller (i); } },
        { "keys among pedals",
          "Off",
          [&] (int i) { return i % 4 < 2 ? keys (i / 4 * 2 + i % 2) : pedal (i); } },
    };

    for (const auto& row : rows)
    {
        ProcessorFixture f;
        f.set ("Arp-Active", row.arp);
        juce::AudioBuffer<float> audio (2, 512);

        const auto secondsFor = [&] (int numEvents) {
            auto fastest = 1.0e9;

            for (auto i = 0; i < 3; ++i)
            {
                auto midi = flood (numEvents, 512, row.messageAt);
                const auto start = secondsOfProcessor();
                f.processor.processBlock (audio, midi);
                fastest = std::min (fastest, secondsOfProcessor() - start);
            }

            return fastest;
        };

        const auto few = secondsFor (10000), many = secondsFor (80000);
        EXPECT_LT (many, 24.0 * few + 0.01) << row.name;
    }
}

TEST (HostBlocks, GrowOnceForAFloodAndKeepThatRoom)
{
    ProcessorFixture f;
    TestHost host (f.processor);
    juce::AudioBuffer<float> audio (2, 512);
    const auto controllersAndKeys = flood (10000, 512, [] (int i) {
        return i % 2 == 0 ? ShortMessage { { 0xB0, 1, static_cast<std::uint8_t> (i % 128) } }
                          : (i % 4 == 1 ? ShortMessage::noteOn (1, 60, 90) : ShortMessage::noteOff (1, 60));
    });

    for (auto i = 0; i < 40; ++i)
    {
        auto midi = controllersAndKeys;
        midi.ensureSize (2 * 10000 * 9);

        if (i < 20)
        {
            f.processor.processBlock (audio, midi);
            continue;
        }

        const ExpectRealTimeSafe watched ("a flood like the ones before");
        f.processor.processBlock (audio, midi);
    }
}

TEST (HostBlocks, AreNotDisturbedByParametersThatAreNoNumbers)
{
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    ProcessorFixture f;
    TestHost host (f.processor);
    host.send (events ("on 60 @0, on 64 @0"));

    for (auto* parameter : f.processor.getParameters())
        for (const auto bad :
             { std::numeric_limits<float>::quiet_NaN(), infinity, -infinity, 1.0e30f, -1.0e30f, 5.0f, -0.1f })
        {
            parameter->setValue (bad);
            host.run (1000);
            EXPECT_TRUE (parameter->getValue() >= 0.0f && parameter->getValue() <= 1.0f)
                << parameter->getName (64) << " " << bad;
        }

    host.send (events ("off 60 @0, off 64 @0"));
    host.run (bar);
    EXPECT_THAT (host.getSounding(), IsEmpty());
}
} // namespace Zn::Audio::Plugins::Vornel
