#include "Plugin/ProcessorFixture.h"
#include "Plugin/Projects.h"
#include "Plugin/RandomState.h"

#include "Foundation/Events/SharedTimer.h"
#include "Support/Documents.h"
#include "Support/MessageLoop.h"

#include <gmock/gmock.h>

#include <thread>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using testing::IsEmpty;
using Tests::runMessageLoopUntil;
using Tests::runPendingMessages;

void restoreOnAWorker (juce::AudioProcessor& processor, const juce::MemoryBlock& chunk)
{
    std::thread ([&] { restore (processor, chunk); }).join();
}

std::vector<float> valuesOf (const juce::AudioProcessor& processor)
{
    std::vector<float> values;

    for (const auto* parameter : processor.getParameters())
        values.push_back (parameter->getValue());

    return values;
}

/** The sound of a held chord. */
std::vector<float> soundOf (Processor& processor)
{
    constexpr auto numSamples = 2 * quarter;
    processor.setSeed (1);
    processor.prepareToPlay (48000.0, numSamples);

    juce::AudioBuffer<float> audio (2, numSamples);
    auto midi = events ("on 48 @0, on 55 @10, on 64 @20");
    processor.processBlock (audio, midi);
    return { audio.getReadPointer (0), audio.getReadPointer (0) + numSamples };
}

/** Sets what a text cannot hold exactly and the host does not keep to what its text says. */
void roundWhatTheHostDoesNotKeep (State& state)
{
    state.bpm.setInt (juce::roundToInt (state.bpm.getFloat()));

    for (auto* parameter : parametersUnknownToHost (state.params))
        parameter->setValueNotifyingHost (
            parameter->getValueForText (parameter->getText (parameter->getValue(), 30)));
}
} // namespace

TEST (Project, ComesBackInANewInstanceByteForByteAndSoundsTheSame)
{
    juce::Random random (1);

    for (auto i = 0; i < 12; ++i)
    {
        ProcessorFixture original, copy;
        randomise (original.state, random);
        roundWhatTheHostDoesNotKeep (original.state);
        original.set ("Enable-Synth", "On");
        original.drawSteps (0, 8, i % 3);
        original.state.liveSlots->index = 0;
        original.state.liveSlots->heard = 0;

        const auto chunk = save (original.processor);
        restore (copy.processor, chunk);

        EXPECT_EQ (textIn (save (copy.processor)), textIn (chunk)) << i;
        EXPECT_EQ (valuesOf (copy.processor), valuesOf (original.processor)) << i;
        EXPECT_TRUE (soundOf (copy.processor) == soundOf (original.processor)) << i;
        EXPECT_EQ (copy.state.isDirty(), original.state.isDirty()) << i;
    }
}

TEST (Project, BeginsWithThePresetsThatWelcome)
{
    const Processor processor;
    auto& state = const_cast<Processor&> (processor).getState();

    EXPECT_EQ (state.getName(), "WELCOME");
    EXPECT_EQ (state.synthPreset.getName(), "Spacey Piano");
    EXPECT_FALSE (state.isDirty() || state.synthPreset.isDirty());
    EXPECT_FALSE (state.patterns.getPatternData()->slots[0].events.notes.empty());
    EXPECT_TRUE (state.synthPreset.getDefaultPresetFile().existsAsFile());

    state.loadInit();
    EXPECT_EQ (state.getName(), "Init");
    State fresh;
    EXPECT_EQ (Tests::saved (state)["Patterns"], Tests::saved (fresh)["Patterns"]);
    EXPECT_EQ (Tests::saved (state)["Params"], Tests::saved (fresh)["Params"]);
}

/** What sounds ends, nothing begins, and then the restored pattern is there: at once where the message thread can be
    had, otherwise when it gets to it.
*/
TEST (Project, RestoredIsNeverAnsweredByThePatternBefore)
{
    ProcessorFixture original;
    original.drawSteps (0, 16, 1);
    const auto chunk = save (original.processor);

    for (const auto onAWorker : { false, true })
    {
        ProcessorFixture f;
        f.drawQuarters (0, 0, 0.9);
        TestHost host (f.processor);
        host.watchesRealTime = false;
        host.send (events ("on 60 @0"));
        host.run (quarter / 2);
        EXPECT_EQ (host.noteOns(), "60@0");

        if (onAWorker)
        {
            restoreOnAWorker (f.processor, chunk);
            host.run (4 * quarter);
            EXPECT_EQ (host.noteOns(), "60@0") << "neither pattern plays while the project waits";
            EXPECT_THAT (host.getSounding(), IsEmpty());

            EXPECT_TRUE (runMessageLoopUntil ([&] { return ! f.processor.isLoadPending(); }));
        }
        else
        {
            restore (f.processor, chunk);
        }

        host.run (2 * quarter);
        EXPECT_EQ (startsOf (host, 60).size(), 1u);
        EXPECT_GE (startsOf (host, 72).size(), 7u);
        host.send (events ("off 60 @0"));
        host.run (quarter);
        EXPECT_EQ (host.unbalanced(), "");
    }
}

TEST (Project, CutAnywhereLeavesTheOneThatIsThere)
{
    ProcessorFixture f;
    const auto other = save (f.processor);
    f.drawQuarters (2, 0);
    f.set ("Transpose", "5");
    const auto before = save (f.processor);

    const auto whole = static_cast<int> (other.getSize());

    for (auto size = 0; size < whole - 1; ++size) // the last byte is the NUL
    {
        f.processor.setStateInformation (other.getData(), size);

        if (size % 512 == 0)
        {
            ASSERT_EQ (textIn (save (f.processor)), textIn (before)) << size;
        }
    }

    EXPECT_EQ (textIn (save (f.processor)), textIn (before));
    f.processor.setStateInformation (other.getData(), whole - 1);
    EXPECT_EQ (textIn (save (f.processor)), textIn (other));
}

TEST (Project, IsNotOverwrittenByAMoveOfAParameterThatCameBeforeIt)
{
    ProcessorFixture f;
    f.set ("Transpose", "5");
    const auto chunk = save (f.processor);

    f.state.learnMap.bind ({ Midi::Learn::Target::forParam ("Transpose"), 64 });
    TestHost host (f.processor);
    host.send (events ("cc 64 127 @0"));
    host.run (512);
    EXPECT_EQ (f.state.params.transpose.get(), 12);

    restore (f.processor, chunk);
    f.state.learnMap.update();
    EXPECT_EQ (f.state.params.transpose.get(), 5);
}

TEST (Project, TellsTheHostOfEditsButNotThatItWasLoaded)
{
    struct Host : juce::AudioProcessorListener
    {
        void audioProcessorParameterChanged (juce::AudioProcessor*, int, float) override {}
        void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails& details) override
        {
            edits += details.nonParameterStateChanged ? 1 : 0;
        }

        int edits = 0;
    };

    ProcessorFixture f;
    Host host;
    f.processor.addListener (&host);
    const auto later = [&host] {
        runPendingMessages();
        Events::SharedTimer::getInstance().timerCallback();
        Events::SharedTimer::getInstance().timerCallback();
        return std::exchange (host.edits, 0);
    };

    later();
    juce::Random random (3);
    f.drawQuarters (0, 1);
    EXPECT_EQ (later(), 1);
    const auto chunk = save (f.processor);
    randomise (f.state, random);
    EXPECT_GT (later(), 0);
    restore (f.processor, chunk);
    EXPECT_EQ (later(), 0);
    f.state.applyDocument (Tests::saved (f.state), ReflectorContext::forPresetFile());
    EXPECT_GT (later(), 0);
    f.processor.removeListener (&host);
}

} // namespace Zn::Audio::Plugins::Vornel
