#include "Plugin/Vornel/Processor.h"
#include "Presets/Undo/Transaction.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
struct PluginUndo : ::testing::Test
{
    Processor processor { StartUp::empty };
    State& state = processor.getState();
    Undo::Manager& undo = processor.getUndo();

    nlohmann::json document() { return state.createDocument (ReflectorContext::forUndo()); }
    std::size_t fingerprint() { return std::hash<nlohmann::json>() (document()); }

    void edit (const std::function<void()>& change)
    {
        Undo::Transaction transaction (undo, "Edit");
        change();
        transaction.markChanged();
    }
};

juce::AudioProcessorParameter& anyParameter (ParamList& list, juce::Random& random)
{
    const auto& children = list.getChildren();
    const auto& params = list.getParams();
    const auto chosen = random.nextInt (static_cast<int> (children.size() + params.size()));
    const auto child = static_cast<std::size_t> (chosen);

    return child < children.size() ? anyParameter (*children[child].second, random)
                                   : params[child - children.size()].second->getParameter();
}

/** One thing that a user may do. */
void changeSomething (State& state, juce::Random& random)
{
    auto& slot = state.patterns.getSlots()[static_cast<std::size_t> (random.nextInt (8))];
    auto& steps = slot.pattern.steps;
    const Sequencer::PatternController::Edit edit (state.patterns);

    switch (random.nextInt (8))
    {
    case 0:
        state.slotParam.setInt (random.nextInt (8));
        break;
    case 1:
        state.lowestOctave.setInt (random.nextInt (11));
        break;
    case 2:
        state.snap = ! state.snap;
        break;
    case 3:
        state.bpm.setDouble (60 + random.nextInt (100));
        break;
    case 4:
        slot.time.setBars ({ { { 1 + random.nextInt (7), 8 } } });
        break;
    case 5:
        steps.resize (static_cast<std::size_t> (random.nextInt (6)));
        break;
    case 6:
        steps.emplace_back().time = { random.nextDouble(), random.nextDouble() };
        steps.back().event.velocity = random.nextFloat();
        steps.back().enabled = random.nextBool();
        break;
    default:
        anyParameter (state.params, random).setValueNotifyingHost (random.nextFloat());
        break;
    }
}
} // namespace

TEST_F (PluginUndo, ComesBackToEveryStateOfALongSession)
{
    constexpr std::size_t numEdits = 1000;
    juce::Random random (1);
    std::vector<std::size_t> documents { fingerprint() };

    for (std::size_t i = 0; i < numEdits; ++i)
    {
        edit ([&] { changeSomething (state, random); });
        documents.push_back (fingerprint());
    }

    for (auto position = documents.size() - 1; position-- > 0;)
    {
        undo.undo();
        ASSERT_EQ (fingerprint(), documents[position]) << "undone to " << position;
    }

    EXPECT_FALSE (undo.canUndo());

    for (std::size_t position = 1; position < documents.size(); ++position)
    {
        undo.redo();
        ASSERT_EQ (fingerprint(), documents[position]) << "redone to " << position;
    }

    EXPECT_FALSE (undo.canRedo());
    EXPECT_LT (undo.getNumBytes(), numEdits * 4096);
}

TEST_F (PluginUndo, LeavesExactWhatAnEditDidNotTouch)
{
    auto& cutoff = state.params.sound.synth.filter.cutoff.getParameter();
    auto& octave = state.params.octave.getParameter();
    cutoff.setValueNotifyingHost (0.123456f);
    undo.restart();

    edit ([&] { state.params.sound.synth.filter.resonance.getParameter().setValueNotifyingHost (0.9f); });
    edit ([&] { state.snap = false; });
    octave.setValueNotifyingHost (1.0f); // played by the host, and no part of any preset
    const auto played = octave.getValue();

    undo.undo();
    undo.undo();
    EXPECT_EQ (cutoff.getValue(), 0.123456f);
    EXPECT_EQ (octave.getValue(), played);
    undo.redo();
    EXPECT_EQ (cutoff.getValue(), 0.123456f);
    EXPECT_EQ (octave.getValue(), played);
}

TEST_F (PluginUndo, TakesBackAPresetAndNoProject)
{
    const auto context = ReflectorContext::forPresetFile();
    const auto pattern = state.createDocument (context), sound = state.synthPreset.createDocument (context);
    edit ([this] { state.bpm.setDouble (87.0); });
    const auto before = document();

    state.applyDocument (pattern, context);
    EXPECT_EQ (undo.getCurrentName(), "Load Init");
    state.synthPreset.applyDocument (sound, context);
    undo.undo();
    EXPECT_FALSE (document() == before);
    undo.undo();
    EXPECT_TRUE (document() == before);

    juce::MemoryBlock project;
    processor.getStateInformation (project);
    processor.setStateInformation (project.getData(), static_cast<int> (project.getSize()));
    EXPECT_FALSE (undo.canUndo() || undo.canRedo());
    EXPECT_TRUE (document() == before);
}

TEST_F (PluginUndo, TakesBackWhatWasLearnedChangeByChange)
{
    using Midi::Learn::Target;
    auto& map = state.learnMap;

    const auto listed = [&map] {
        std::string numbers;

        for (const auto& binding : map.getBindings())
            numbers += std::to_string (binding.number) + " ";

        return numbers;
    };

    map.learn (Target::forSlot (2));
    state.learner.offer ({ juce::MidiMessage (0x90, 36, 100).getRawData(), 3, 0 });
    map.update();
    map.bindKeySwitches (120);
    EXPECT_FALSE (map.bind ({ Target::forSlot (8), 36 }));
    map.clearAll();
    map.clearAll();

    std::vector<std::string> tables;

    for (; undo.canUndo(); tables.push_back (listed()))
        undo.undo();

    EXPECT_EQ (tables, (std::vector<std::string> { "120 121 122 123 124 125 126 127 ", "36 ", "" }));
}
} // namespace Zn::Audio::Plugins::Vornel
