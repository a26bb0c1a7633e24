#include "Midi/Learn/LearnerRecord.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Zn::Midi::Learn;

TEST (LearnerRecord, HandsWholeMessagesToAnotherThread)
{
    LearnerRecord record;

    std::jthread audio ([&record] (const std::stop_token& stop) {
        for (auto value = 0; ! stop.stop_requested(); value = (value + 1) % 128)
        {
            const juce::MidiMessage message (0x90, value, value);
            record.offer ({ message.getRawData(), 3, 0 });
        }
    });

    for (auto round = 0; round < 2000; ++round)
    {
        record.arm();

        if (round % 3 == 0)
            record.stop();

        while (record.getState() == LearnerRecord::armed)
            std::this_thread::yield();

        const auto message = record.getCaptured().value_or (juce::MidiMessage (0x90, 0, 0));
        ASSERT_EQ (message.getRawData()[1], message.getRawData()[2]);
    }
}
