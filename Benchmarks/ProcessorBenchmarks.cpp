#include "Performance.h"

#include <benchmark/benchmark.h>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
/** A pattern of steps in all its columns and rows. */
void drawDensely (Sequencer::PatternController& patterns)
{
    constexpr int columns = 64, rows = 8;
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

void wholeBlock (benchmark::State& run)
{
    const auto blockSize = static_cast<int> (run.range (0));
    Performance performance (blockSize);
    performance.start();
    drawDensely (performance.processor.getState().patterns);
    performance.holdKeys (static_cast<int> (run.range (1)), 48, 3);
    performance.nextBlock();

    for (auto _ : run)
        performance.nextBlock();

    const auto onePercent = double (run.iterations()) * blockSize / Performance::rate / 100.0; // seconds
    run.counters["% of deadline"] =
        benchmark::Counter (onePercent, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK (wholeBlock)->ArgsProduct ({ { 64, 128, 512 }, { 0, 4, 10 } })->ArgNames ({ "block", "keys" });
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
