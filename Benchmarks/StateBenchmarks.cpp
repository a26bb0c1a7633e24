#include "Plugin/Vornel/Processor.h"
#include "Presets/AtomicFile.h"
#include "Presets/PresetFile.h"
#include "Presets/Undo/Transaction.h"

#include <benchmark/benchmark.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr int columns = 64;

/** Eight patterns with a step in each of their columns: more than people draw. */
void drawEverything (State& state)
{
    const Sequencer::PatternController::Edit edit (state.patterns);
    juce::Random random (1);

    for (auto& slot : state.patterns.getSlots())
    {
        slot.reset();
        slot.pattern.grid = columns;

        for (auto column = 0; column < columns; ++column)
        {
            Sequencer::TimedNote step;
            step.time = { column / double (columns), 0.98 / columns };
            step.event.noteNum = 60 + random.nextInt (12);
            step.event.velocity = random.nextFloat();
            step.enabled = true;
            slot.pattern.steps.push_back (step);
        }
    }
}

struct FullState
{
    FullState() { drawEverything (processor.getState()); }

    State& state() { return processor.getState(); }

    const juce::ScopedJuceInitialiser_GUI juceIsRunning; // whoever runs this is the message thread
    Processor processor { StartUp::empty };
};

void saveHostState (benchmark::State& run)
{
    FullState full;
    juce::MemoryBlock chunk;

    for (auto _ : run)
        full.processor.getStateInformation (chunk);

    run.counters["bytes"] = static_cast<double> (chunk.getSize());
}

void loadHostState (benchmark::State& run)
{
    FullState full;
    juce::MemoryBlock chunk;
    full.processor.getStateInformation (chunk);

    for (auto _ : run)
        full.processor.setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
}

void loadPreset (benchmark::State& run)
{
    FullState full;
    const juce::TemporaryFile file (".json");
    const auto document = full.state().createDocument (ReflectorContext::forPresetFile());
    Presets::replaceFile (file.getFile(),
                          Presets::PresetFile::toBytes (document),
                          Presets::Durability::canBeMadeAgain);

    for (auto _ : run)
        benchmark::DoNotOptimize (full.state().load (file.getFile()).is_null());
}

void keepEdit (benchmark::State& run)
{
    FullState full;

    for (auto _ : run)
        Undo::Transaction (full.processor.getUndo(), "Edit").markChanged();

    run.counters["bytes each"] =
        benchmark::Counter (static_cast<double> (full.processor.getUndo().getNumBytes()),
                            benchmark::Counter::kAvgIterations);
}

void undoAndRedo (benchmark::State& run)
{
    FullState full;
    auto& undo = full.processor.getUndo();
    Undo::Transaction (undo, "Edit").markChanged();

    for (auto _ : run)
    {
        undo.undo();
        undo.redo();
    }
}

BENCHMARK (saveHostState)->Unit (benchmark::kMillisecond);
BENCHMARK (loadHostState)->Unit (benchmark::kMillisecond);
BENCHMARK (loadPreset)->Unit (benchmark::kMillisecond);
BENCHMARK (keepEdit)->Unit (benchmark::kMillisecond);
BENCHMARK (undoAndRedo)->Unit (benchmark::kMillisecond);
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
