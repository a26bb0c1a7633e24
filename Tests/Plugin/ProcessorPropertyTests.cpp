#include "Plugin/Vornel/Processor.h"

#include "Support/TestHost.h"

#include <gmock/gmock.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int numSessions = 150;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
constexpr int numSessions = 150;
#else
constexpr int numSessions = 2000;
#endif
#else
constexpr int numSessions = 2000;
#endif

constexpr double rate = 8000.0; // low, so that a session takes little time
constexpr int maxBlock = 512;

/** A player, a host and an editor that do anything at any time; the same for a seed. */
class Session
{
public:
    explicit Session (int seed) : random (seed), host (processor, rate, maxBlock, 60.0 + random.nextInt (180))
    {
        processor.setSeed (seed);
        host.nextBlockSize = [this] { return 1 + random.nextInt (random.nextBool() ? maxBlock : 40); };

        for (size_t slot = 0; slot < Sequencer::numSlots; ++slot)
            draw (slot);
    }

    void act()
    {
        switch (random.nextInt (20))
        {
        case 0:
            return host.playHead.stop();
        case 1:
            return host.playHead.play();
        case 2:
            return host.playHead.jumpTo (random.nextInt (64) / 4.0 - 1.0);
        case 3:
            return host.playHead.setTempo (30.0 + random.nextInt (400));
        case 4:
            return host.playHead.setLoop (0.0, random.nextInt (9) / 8.0);
        case 5:
            return set (random.nextInt (12), random.nextFloat()); // any parameter, the arp switch too
        case 6:
            return set (0, random.nextFloat()); // transposition
        case 7:
            return state.liveSlots->pending.store (random.nextInt (Sequencer::numSlots));
        case 8:
            return draw (static_cast<size_t> (random.nextInt (Sequencer::numSlots)));
        case 9:
            return moveOctaves();
        case 10:
            return state.keyMode.store (random.nextBool());
        case 11:
            return send (juce::MidiMessage::controllerEvent (1 + random.nextInt (16),
                                                             64,
                                                             random.nextBool() ? 127 : 0));
        case 12:
            host.isBypassed = random.nextInt (4) == 0;
            return;
        case 13:
            state.liveSlots->enable = random.nextBool();
            return;
        case 14:
            state.playHead->internalClock = random.nextInt (4) == 0;
            return;
        case 15:
            return learn();
        default:
            return key();
        }
    }

    void live() { host.run (random.nextInt (random.nextBool() ? 2000 : 60)); }

    /** Lets go of everything, and waits for what still sounds to end by itself. */
    void end()
    {
        host.isBypassed = false;

        for (auto note = 0; note < 128; ++note)
            send (juce::MidiMessage::noteOff (1, note));

        send (juce::MidiMessage::controllerEvent (1, 64, 0));
        host.run (static_cast<std::int64_t> (rate * 16.0 * 60.0 / 30.0 / 4.0));
    }

    juce::Random random;
    Processor processor { StartUp::empty };
    State& state = processor.getState();
    Tests::TestHost host;

private:
    void send (const juce::MidiMessage& message)
    {
        juce::MidiBuffer buffer;
        buffer.addEvent (message, 0);
        host.send (buffer);
    }

    void key()
    {
        const auto note = 40 + random.nextInt (12);
        const auto velocity = static_cast<juce::uint8> (random.nextInt (128)); // 0 is a note-off

        send (random.nextBool() ? juce::MidiMessage::noteOn (1 + random.nextInt (16), note, velocity)
                                : juce::MidiMessage::noteOff (1, note));
    }

    void learn()
    {
        using Target = Midi::Learn::Target;
        auto& map = state.learnMap;
        const auto target = random.nextBool()
                                ? Target::forSlot (random.nextInt (Sequencer::numSlots))
                                : Target::forParam (random.nextBool() ? "Transpose" : "Arp-Active");

        switch (random.nextInt (5))
        {
        case 0:
            return map.clearAll();
        case 1:
            return map.learn (target);
        case 2:
            return map.update();
        default:
            map.bind ({ target, target.isSlot() ? 40 + random.nextInt (12) : 64 });
        }
    }

    void set (int index, float value) { processor.getParameters()[index]->setValueNotifyingHost (value); }

    void moveOctaves()
    {
        state.octaveRange.low = random.nextInt (10);
        state.octaveRange.high = random.nextInt (12);
    }

    void draw (size_t slot)
    {
        const Sequencer::PatternController::Edit edit (state.patterns);
        auto& drawn = state.patterns.getSlots()[slot];
        drawn.reset();

        for (auto i = random.nextInt (24); --i >= 0;)
        {
            Sequencer::TimedNote step;
            step.time = { random.nextInt (16) / 16.0, random.nextInt (12) / 16.0 };
            step.event.noteNum = random.nextInt (8) == 0 ? random.nextInt (128) : 60 + random.nextInt (8);
            step.event.chance = random.nextBool() ? 1.0f : random.nextFloat();
            step.enabled = true;
            drawn.pattern.steps.push_back (step);
        }
    }
};
} // namespace

TEST (ProcessorProperties, NothingHangsWhateverPlayerHostAndEditorDo)
{
    for (auto seed = 0; seed < numSessions && ! testing::Test::HasFailure(); ++seed)
    {
        Session session (seed);

        for (auto i = 0; i < 40; ++i)
        {
            session.act();
            session.live();
        }

        session.end();
        EXPECT_THAT (session.host.getSounding(), testing::IsEmpty()) << "seed " << seed;
        EXPECT_FALSE (session.host.isPedalDown()) << "seed " << seed;
    }
}
} // namespace Zn::Audio::Plugins::Vornel
