#include "Plugin/Vornel/Processor.h"
#include "Support/TestPlayHead.h"

#include <benchmark/benchmark.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr double rate = 48000.0;
constexpr int columns = 64, rows = 8;

/** A host that plays a dense pattern on some held keys, block by block. */
class Performance
{
public:
    Performance (int blockSize, int numHeldKeys) : audio (2, blockSize)
    {
        processor.setPlayHead (&playHead);
        processor.prepareToPlay (rate, blockSize);
        midi.ensureSize (32768);
        draw();

        for (auto key = 0; key < numHeldKeys; ++key)
            midi.addEvent (juce::MidiMessage::noteOn (1, 48 + 3 * key, juce::uint8 (100)), 0);

        nextBlock();
    }

    ~Performance() { processor.setPlayHead (nullptr); }

    void nextBlock()
    {
        processor.processBlock (audio, midi);
        midi.clear();
        playHead.advance (audio.getNumSamples());
    }

private:
    void draw()
    {
        auto& patterns = processor.getState().patterns;
        const Sequencer::PatternController::Edit edit (patterns);
        auto& slot = patterns.getSlots().front();
        slot.reset();
        slot.pattern.grid = columns;

        for (auto column = 0; column < columns; ++column)
            for (auto row = 0; row < rows; ++row)
            {
                Sequencer::TimedNote step;
                step.time = { column / double (columns), 0.98 / columns };
                step.event.noteNum = 62 + row;
                step.enabled = true;
                slot.pattern.steps.push_back (step);
            }
    }

    Processor processor;
    Test::TestPlayHead playHead { rate };
    juce::AudioBuffer<float> audio;
    juce::MidiBuffer midi;
};

void wholeBlock (benchmark::State& run)
{
    const auto blockSize = static_cast<int> (run.range (0));
    Performance performance (blockSize, static_cast<int> (run.range (1)));

    for (auto _ : run)
        performance.nextBlock();

    const auto onePercent = double (run.iterations()) * blockSize / rate / 100.0; // seconds
    run.counters["% of deadline"] =
        benchmark::Counter (onePercent, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK (wholeBlock)->ArgsProduct ({ { 64, 128, 512 }, { 0, 4, 10 } })->ArgNames ({ "block", "keys" });
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
