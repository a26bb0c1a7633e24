#include "Plugin/Vornel/MidiPipeline.h"
#include "Plugin/Vornel/State.h"

#include "Support/Lateness.h"
#include "Support/MidiText.h"
#include "Support/RealTimeGuard.h"
#include "Support/WalkPattern.h"

#include <gmock/gmock.h>

#include <map>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
using testing::ElementsAre;
using Tests::events;
using Tests::ExpectRealTimeSafe;
using Tests::isAtMostOneLate;
using Tests::text;

constexpr int blockSize = 512;

/** Acts on every event of one note, and does what a test says. */
class NoteHandler : public Midi::Learn::Handler
{
public:
    NoteHandler (int noteToMatch, std::function<void()> whatToDo)
        : note (noteToMatch), act (std::move (whatToDo))
    {}

    bool matches (const juce::MidiMessage& message) const noexcept override
    {
        return message.isNoteOnOrOff() && message.getNoteNumber() == note;
    }

    void handle (const juce::MidiMessage&) noexcept override { act(); }
    const Midi::Learn::Binding& getBinding() const noexcept override { return binding; }

private:
    const int note;
    const Midi::Learn::Binding binding;
    const std::function<void()> act;
};

/** A pipeline whose learn table a test writes; the arp is off, so that its keys can be read at the output. */
struct Learned
{
    Learned()
    {
        Tests::drawWalk (state.patterns);
        log.reserve (16);
        ppq.resize (blockSize);
        pipeline.prepare (blockSize);
        state.params.arpActive->setValueNotifyingHost (0.0f);
    }

    void learn (int note, std::function<void()> act)
    {
        table.handlers.push_back (std::make_shared<NoteHandler> (note, std::move (act)));
    }

    /** What one block makes of the events. */
    std::string process (const std::string& input)
    {
        for (size_t i = 0; i < ppq.size(); ++i)
            ppq[i] = numBlocks * 1.0 + double (i) / blockSize; // a quarter note a block

        ++numBlocks;
        const Sequencer::PatternFrame frame { state.patterns.getPatternData(),
                                              state.liveSlots,
                                              state.playHead };

        midi = events (input);
        midi.ensureSize (Midi::reservedBufferBytes);

        {
            const ExpectRealTimeSafe watched ("learned messages");
            pipeline.process (midi, { ppq, true, false, false }, frame, table);
        }

        return text (midi);
    }

    /** As a handler does it: what tells others of the change is left to the message thread. */
    void transpose (int semitones)
    {
        auto& parameter = *state.params.transpose;
        static_cast<juce::AudioProcessorParameter&> (parameter).setValue (
            parameter.convertTo0to1 (static_cast<float> (semitones)));
    }

    State state;
    MidiPipeline pipeline { state };
    Midi::Learn::State table { &state.learner, {} };
    std::vector<int> log;
    juce::MidiBuffer midi;
    std::vector<double> ppq;
    int numBlocks = 0;
};

TEST (LearnedMessages, ActAtTheirOwnSampleAndAreConsumed)
{
    Learned r;
    r.learn (20, [&r] { r.transpose (12); });
    r.learn (21, [&r] { r.transpose (0); });

    EXPECT_EQ (
        r.process ("on 60 @0, on 20 @100, off 20 @110, on 62 @200, off 62 @300, on 21 @400"),
        "on 60 @0, off 60 v100 @100, on 72 @100, on 74 @200, off 74 v100 @300, off 72 v100 @400, on 60 @400");
    EXPECT_EQ (r.process ("off 60 @511, off 21 @511"), "off 60 v100 @511");
}

TEST (LearnedMessages, ActAfterWhatStandsBeforeThemAtTheSameSample)
{
    Learned r;
    r.learn (20, [&r] { r.transpose (12); });

    EXPECT_EQ (r.process ("on 60 @100, on 20 @100, on 62 @100"),
               "on 60 @100, off 60 v100 @100, on 72 @100, on 74 @100");
}

TEST (LearnedMessages, ActAtBothEndsOfABlock)
{
    Learned r;
    r.learn (20, [&r] { r.transpose (12); });
    r.learn (21, [&r] { r.transpose (0); });

    EXPECT_EQ (r.process ("on 20 @0, on 60 @0, on 21 @511"), "on 72 @0, off 72 v100 @511, on 60 @511");
    EXPECT_EQ (r.process (""), "");
}

TEST (LearnedMessages, RunEveryHandlerThatMatchesInTheTablesOrder)
{
    Learned r;
    r.learn (20, [&r] { r.log.push_back (1); });
    r.learn (21, [&r] { r.log.push_back (2); });
    r.learn (20, [&r] { r.log.push_back (3); });
    r.learn (20, [&r] { r.log.push_back (4); });

    EXPECT_EQ (r.process ("on 20 @5, on 21 @5, on 20 v0 @6"), "");
    EXPECT_THAT (r.log, ElementsAre (1, 3, 4, 2, 1, 3, 4));
}

TEST (LearnedMessages, SoundAndActOnNobodyWhileTheLearnerWaits)
{
    Learned r;
    r.learn (60, [&r] { r.log.push_back (60); });
    r.state.learner.arm();

    EXPECT_EQ (r.process ("cc 7 1 @0, on 60 v90 @3, off 60 @9"), "cc 7 1 @0, on 60 v90 @3, off 60 v90 @9");
    EXPECT_TRUE (r.log.empty());
    ASSERT_TRUE (r.state.learner.getCaptured().has_value());
    EXPECT_EQ (r.state.learner.getCaptured()->getVelocity(), 90)
        << "the first note or pedal, not the controller";

    r.state.learner.stop();
    EXPECT_EQ (r.process ("on 60 @3"), "");
    EXPECT_THAT (r.log, ElementsAre (60));
}

TEST (LearnedMessages, CutTheBlockWithoutChangingThePattern)
{
    Learned whole, cut;
    cut.learn (20, [] {});

    for (auto* rig : { &whole, &cut })
        rig->state.params.arpActive->setValueNotifyingHost (1.0f);

    std::map<int, std::vector<int>> samplesOfWhole, samplesOfCut; // by status byte and note

    const auto collect = [] (const juce::MidiBuffer& block, int start, auto& samples) {
        for (const auto event : block)
            samples[event.data[0] * 128 + event.data[1]].push_back (start + event.samplePosition);
    };

    for (auto block = 0; block < 8; ++block)
    {
        const std::string keys = block == 0 ? "on 60 @0, on 64 @0" : "";
        auto learned = keys;

        for (auto sample = block; sample < blockSize; sample += 37)
            learned += ", on 20 @" + std::to_string (sample);

        whole.process (keys);
        collect (whole.midi, block * blockSize, samplesOfWhole);
        cut.process (learned);
        collect (cut.midi, block * blockSize, samplesOfCut);
    }

    ASSERT_EQ (samplesOfCut.size(), samplesOfWhole.size());
    ASSERT_THAT (samplesOfWhole, testing::SizeIs (testing::Gt (4u)));

    // What falls between the last sample of a segment and the first of the next is heard at the latter.
    for (const auto& [message, samples] : samplesOfWhole)
        EXPECT_THAT (samplesOfCut[message], testing::Pointwise (isAtMostOneLate(), samples)) << message;
}
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
