#include "Sequencer/PatternEngine.h"
#include "Support/RenderedSteps.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace Zn::Sequencer
{
namespace
{
constexpr double ppqPerSample = 120.0 / (48000.0 * 60.0); // at 120 BPM and 48 kHz
constexpr double patternLength = 16.0;                    // quarter notes
constexpr int numRows = 8;

/** Touching steps in every column of every row: at each new column eight notes end and eight begin. */
RenderedSlot fullPattern (int numColumns)
{
    const auto width = patternLength / numColumns;
    Tests::Notes notes;

    for (auto column = 0; column < numColumns; ++column)
        for (auto row = 0; row < numRows; ++row)
            notes.push_back (Tests::note (60 + row, column * width, width));

    return Tests::loop (patternLength, notes);
}

/** Plays a pattern round and round, block by block, and counts what it plays. */
void playBlocks (benchmark::State& state, RenderedSlot slot, int blockSize)
{
    auto patterns = std::make_shared<PatternData>();
    patterns->slots[0] = std::move (slot);

    const PatternFrame frame { patterns, std::make_shared<LiveSlots>(), std::make_shared<PlayHead>() };
    PatternEngine engine;
    engine.prepare (blockSize);

    std::vector<double> positions (static_cast<std::size_t> (blockSize));
    juce::MidiBuffer rows;
    rows.ensureSize (32768);

    auto sample = 0.0;
    auto numBytes = 0.0;

    for (auto _ : state)
    {
        for (auto& position : positions)
            position = ppqPerSample * sample++;

        rows.clear();
        engine.run ({ positions, true, false, false }, frame, rows);
        numBytes += rows.data.size();
    }

    constexpr auto bytesOfEvent = 9.0; // as the buffer keeps one of three bytes
    const auto numBlocks = static_cast<double> (state.iterations());
    state.counters["events/block"] = numBytes / bytesOfEvent / numBlocks;
    const auto onePercent = numBlocks * blockSize / 48000.0 / 100.0; // seconds
    state.counters["% of deadline"] =
        benchmark::Counter (onePercent, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/** The block a musician has: 64 columns of 8 rows. */
void densePattern (benchmark::State& state)
{
    playBlocks (state, fullPattern (64), static_cast<int> (state.range (0)));
}

/** Notes that are far away should cost next to nothing. */
void patternOfManyNotes (benchmark::State& state)
{
    playBlocks (state, fullPattern (static_cast<int> (state.range (0)) / numRows + 1), 64);
}

/** A loop of three samples: 170 passes in a block. */
void tinyLoop (benchmark::State& state)
{
    auto slot = fullPattern (1);
    const auto length = std::max (3.0 * ppqPerSample, 0.001);

    for (auto& note : slot.events.notes)
        note.time.length = length;

    slot.playLength = length;
    playBlocks (state, slot, 512);
}
} // namespace

BENCHMARK (densePattern)->Arg (64)->Arg (128)->Arg (512);
BENCHMARK (patternOfManyNotes)->RangeMultiplier (10)->Range (10, 10000);
BENCHMARK (tinyLoop);
} // namespace Zn::Sequencer
