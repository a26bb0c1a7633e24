#include "Support/TestHost.h"

#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace Zn::Tests
{
namespace
{
constexpr int blocksUntilWarm = 12;
}

TestHost::TestHost (juce::AudioProcessor& processorToDrive, double rate, int blockSize, double tempo)
    : playHead (rate, tempo)
    , sampleRate (rate)
    , maxBlockSize (blockSize)
    , processor (processorToDrive)
    , audio (2, blockSize)
{
    midi.ensureSize (32768);
    upcoming.ensureSize (32768);
    processor.setPlayHead (&playHead);
    processor.setRateAndBufferSizeDetails (rate, blockSize);
    processor.prepareToPlay (rate, blockSize);
}

TestHost::~TestHost()
{
    processor.releaseResources();
    processor.setPlayHead (nullptr);
}

void TestHost::send (const juce::MidiBuffer& events)
{
    upcoming.addEvents (events, 0, -1, 0);
}

void TestHost::run (std::int64_t numSamples)
{
    while (numSamples > 0)
    {
        const auto wanted = nextBlockSize != nullptr ? nextBlockSize() : maxBlockSize;
        const auto size = static_cast<int> (std::min<std::int64_t> (wanted, numSamples));
        runBlock (size);
        numSamples -= size;
    }
}

void TestHost::runBlock (int numSamples)
{
    audio.setSize (2, numSamples, false, false, true);

    midi.clear();
    midi.addEvents (upcoming, 0, numSamples, 0);

    juce::MidiBuffer later;
    later.addEvents (upcoming, numSamples, -1, -numSamples);
    upcoming.swapWith (later);

    const auto process = [&] {
        if (isBypassed)
            processor.processBlockBypassed (audio, midi);
        else
            processor.processBlock (audio, midi);
    };

    if (watchesRealTime && ++numBlocks > blocksUntilWarm && numSamples <= maxBlockSize)
    {
        const ExpectRealTimeSafe watched ("processBlock");
        process();
    }
    else
    {
        process();
    }

    collect (midi, numSamples);
    wasBypassed = isBypassed;
    position += numSamples;
    playHead.advance (numSamples);
}

void TestHost::collect (const juce::MidiBuffer& block, int numSamples)
{
    auto lastSample = 0;

    for (const auto event : block)
    {
        ASSERT_EQ (event.numBytes, 3) << "at sample " << position + event.samplePosition;
        ASSERT_GE (event.samplePosition, lastSample);
        ASSERT_LT (event.samplePosition, numSamples);
        lastSample = event.samplePosition;

        const Received message { position + event.samplePosition,
                                 { event.data[0], event.data[1], event.data[2] } };

        const auto endsWhatPassed = wasBypassed && (message.isNoteOff() || message.isPedal())
                                    && ! message.isPedalDown() && event.samplePosition == 0;

        if (! isBypassed && ! endsWhatPassed && message.bytes[0] < 0xF0)
        {
            ASSERT_EQ (message.channel(), 1) << "at sample " << message.sample;
        }

        received.push_back (message);
    }
}

std::vector<int> TestHost::getSounding() const
{
    std::map<int, bool> sounding;

    for (const auto& message : received)
        if (message.isNoteOn() || message.isNoteOff())
            sounding[message.note()] = message.isNoteOn();

    std::vector<int> notes;

    for (const auto& [note, isSounding] : sounding)
        if (isSounding)
            notes.push_back (note);

    return notes;
}

bool TestHost::isPedalDown() const
{
    std::set<int> channels;

    for (const auto& message : received)
        if (message.isPedalDown())
            channels.insert (message.channel());
        else if (message.isPedal())
            channels.erase (message.channel());

    return ! channels.empty();
}

std::string TestHost::unbalanced() const
{
    std::array<bool, 128> sounding {};
    juce::StringArray faults;
    std::int64_t panicked = -1; // at which sample

    for (const auto& message : received)
    {
        if (message.isAllSoundOff())
            panicked = message.sample;

        if (! message.isNoteOn() && ! message.isNoteOff())
            continue;

        auto& sounds = sounding[static_cast<std::size_t> (message.note())];

        if (sounds == message.isNoteOn() && message.sample != panicked)
            faults.add (juce::String (message.note()) + (sounds ? " struck twice @" : " ended unheard @")
                        + juce::String (message.sample));

        sounds = message.isNoteOn();
    }

    for (const auto note : getSounding())
        faults.add (juce::String (note) + " hangs");

    return faults.joinIntoString (", ").toStdString();
}

std::string TestHost::noteOns() const
{
    juce::StringArray texts;

    for (const auto& message : received)
        if (message.isNoteOn())
            texts.add (juce::String (message.note()) + "@" + juce::String (message.sample));

    return texts.joinIntoString (" ").toStdString();
}
} // namespace Zn::Tests
