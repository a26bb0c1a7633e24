#include "Midi/Inbox.h"

#include "Support/MidiText.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Zn::Midi;
using namespace Zn::Tests;

TEST (Inbox, PutsMessagesBehindThoseOfTheFirstSample)
{
    Inbox inbox;
    inbox.push (juce::MidiMessage (0x90, 60, 100));
    inbox.push (juce::MidiMessage (0xB0, 64, 0));

    auto midi = events ("on 50 @0, off 50 @1");
    inbox.drainInto (midi);
    EXPECT_EQ (text (midi), "on 50 @0, on 60 @0, cc 64 0 @0, off 50 @1");

    juce::MidiBuffer nextBlock;
    inbox.drainInto (nextBlock);
    EXPECT_TRUE (nextBlock.isEmpty());
}

TEST (Inbox, RefusesOtherSizesAndWhatHasNoRoom)
{
    Inbox inbox;
    EXPECT_FALSE (inbox.push (juce::MidiMessage (0xC0, 5)));
    EXPECT_FALSE (inbox.push (juce::MidiMessage::createSysExMessage ("abc", 3)));

    for (auto i = 0; i < Inbox::capacity; ++i)
        EXPECT_TRUE (inbox.push (juce::MidiMessage (0x80, i % 128, 0)));

    EXPECT_FALSE (inbox.push (juce::MidiMessage (0x90, 60, 100)));

    juce::MidiBuffer midi;
    inbox.drainInto (midi);
    EXPECT_EQ (midi.getNumEvents(), Inbox::capacity);
    EXPECT_TRUE (inbox.push (juce::MidiMessage (0x90, 60, 100)));
}

TEST (Inbox, LosesAndMixesUpNothingBetweenTwoThreads)
{
    constexpr auto numMessages = 20000;
    Inbox inbox;

    std::jthread editor ([&inbox] (const std::stop_token& stop) {
        for (auto i = 0; i < numMessages; ++i)
            while (! inbox.push (juce::MidiMessage (0xB0, i & 127, (i >> 7) & 127))
                   && ! stop.stop_requested())
                std::this_thread::yield();
    });

    for (auto received = 0; received < numMessages;)
    {
        juce::MidiBuffer midi;
        inbox.drainInto (midi);

        for (const auto event : midi)
        {
            ASSERT_EQ (event.data[1] | event.data[2] << 7, received & 0x3FFF);
            ++received;
        }
    }
}
