#include "Plugin/SoundingStep.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using testing::ElementsAre;
using testing::IsEmpty;
} // namespace

TEST (Panic, IsSilenceAtOnceHereAndInTheInstrumentsBehind)
{
    struct Row
    {
        const char *arp, *keys, *freshKey;
        int sounding;
        bool isBypassed;
    };

    for (const auto role : { Role::instrument, Role::midiEffect })
        for (const auto blockSize : { 16, 480, 2048 })
            for (const auto& row :
                 { Row { "On", "on 60 @0, on 64 @1", "on 64 @7", 60, false },
                   Row { "On", "cc 64 127 @0, on 60 @1, off 60 @50", "on 60 @7", 60, false },
                   Row { "Off", "on 60 @0, cc 64 127 @1, off 60 @2", "on 60 @7", 60, false },
                   Row { "On", "on 60 ch5 @0, cc 64 127 ch5 @0", "on 60 ch5 @7", 60, true } })
            {
                SCOPED_TRACE (std::string (row.keys) + " in blocks of " + std::to_string (blockSize));
                ProcessorFixture f { role };
                f.drawSteps (0, 1, 0, 1.0); // a bar long
                f.set ("Arp-Active", row.arp);
                f.set ("ADSR-Release", "3");
                f.set ("Delay-Mix", "0.5");
                TestHost host (f.processor, 48000.0, blockSize);

                host.isBypassed = row.isBypassed;
                host.send (events (row.keys));
                host.run (quarter);
                ASSERT_THAT (host.getSounding(), ElementsAre (row.sounding));

                f.state.panic();
                const auto panicked = host.getPosition();
                host.runBlock (blockSize);
                EXPECT_THAT (host.getSounding(), IsEmpty());
                EXPECT_EQ (host.getAudio().getMagnitude (0, blockSize), 0.0f);

                std::vector<std::array<std::uint8_t, 3>> toldOnChannel5, told;

                for (const auto& message : receivedFrom (host, panicked))
                {
                    EXPECT_EQ (message.sample, panicked);
                    EXPECT_FALSE (message.isNoteOn());
                    ((message.bytes[0] & 0x0F) == 4 ? toldOnChannel5 : told).push_back (message.bytes);
                }

                for (const auto number : { 64, 120, 123 })
                {
                    const auto data = static_cast<std::uint8_t> (number);
                    EXPECT_THAT (told, testing::Contains (ElementsAre (0xB0, data, 0)));

                    if (row.isBypassed)
                    {
                        EXPECT_THAT (toldOnChannel5, testing::Contains (ElementsAre (0xB4, data, 0)));
                    }
                }

                for (auto note = 0; note < 128; ++note)
                    EXPECT_THAT (told, testing::Contains (ElementsAre (0x80, note, 0)));

                if (row.isBypassed)
                {
                    EXPECT_THAT (toldOnChannel5, testing::Contains (ElementsAre (0x84, 60, 0)));
                }

                host.run (2 * bar);
                EXPECT_TRUE (std::ranges::none_of (receivedFrom (host, panicked),
                                                   [] (const auto& m) { return m.isNoteOn(); }));

                // A key that comes with a panic is no longer of the past.
                f.state.panic();
                host.send (events (row.freshKey));
                host.run (bar + 4 * blockSize);
                EXPECT_THAT (host.getSounding(), testing::SizeIs (1));
            }
}

TEST (Panic, DropsTheKeysThatWait)
{
    SoundingStep s { true };
    s.sound();
    juce::AudioBuffer<float> nothing (2, 0);
    auto keys = events ("on 50 @0, cc 64 127 @0");
    s.processor.processBlock (nothing, keys);
    EXPECT_TRUE (s.state.inbox.push (juce::MidiMessage::noteOn (1, 40, 0.5f)));

    s.state.panic();
    EXPECT_TRUE (s.state.inbox.push (juce::MidiMessage::noteOn (1, 70, 0.5f)));
    s.host.run (quarter);
    EXPECT_THAT (s.host.getSounding(),
                 testing::AllOf (testing::Not (IsEmpty()), testing::Each (testing::Ge (70))));

    s.host.send (events ("off 70 @0"));
    s.host.run (bar);
    EXPECT_THAT (s.host.getSounding(), IsEmpty());
}

TEST (Panic, MovesNothingThatIsLearned)
{
    using Midi::Learn::Target;
    SoundingStep s { true };
    s.sound();
    s.set ("Transpose", "5");
    s.state.learnMap.bind ({ Target::forParam ("Transpose"), 64 });
    s.state.learnMap.learn (Target::forParam ("Filter-Cutoff"));

    for (const auto isLearning : { true, false })
    {
        s.state.panic();
        s.host.run (480);
        EXPECT_THAT (s.host.getSounding(), IsEmpty());

        s.state.learnMap.update();
        EXPECT_EQ (s.state.learnMap.getLearning().has_value(), isLearning);
        EXPECT_EQ (s.state.params.transpose.get(), 5);
        s.state.learnMap.cancel();
    }
}
} // namespace Zn::Audio::Plugins::Vornel
