#include "Midi/Learn/LearnerRecord.h"

#include "Support/MidiText.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Zn::Midi::Learn;
using namespace Zn::Tests;

namespace
{
/** Offers all events; a letter for each tells whether the learner kept it from the handlers. */
std::string offer (LearnerRecord& record, std::string_view input)
{
    std::string result;

    for (const auto event : events (input))
        result += record.offer (event) ? 'L' : '-';

    return result;
}

std::string captured (const LearnerRecord& record)
{
    const auto message = record.getCaptured();
    return message ? text (juce::MidiBuffer (*message)) : "nothing";
}
} // namespace

TEST (LearnerRecord, CapturesTheFirstEventAfterItWasArmed)
{
    LearnerRecord record;
    EXPECT_EQ (offer (record, "on 60 @0"), "-");
    EXPECT_EQ (captured (record), "nothing");

    record.arm();
    EXPECT_EQ (offer (record, "on 61 @7, on 62 @8"), "LL");
    EXPECT_EQ (captured (record), "on 61 @0");
    EXPECT_EQ (record.getChangeCount(), 1);

    record.arm();
    EXPECT_EQ (captured (record), "nothing");
    EXPECT_EQ (offer (record, "cc 64 127 @0"), "L");
    EXPECT_EQ (captured (record), "cc 64 127 @0");

    record.stop();
    EXPECT_EQ (offer (record, "on 60 @0"), "-");
    EXPECT_EQ (captured (record), "nothing");
    EXPECT_EQ (record.getChangeCount(), 2);
}

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
