#include "Performance.h"
#include "Support/WalkPattern.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr int blockSize = 64;
constexpr double deadlineSeconds = blockSize / Performance::rate;
constexpr int blocksOfRun = 40000; // 53 s of sound: the 99th percentile stands on the 400 slowest
constexpr int allVoices = WavetableSynth::Synth::numVoices;

/** A patch that leaves nothing out: four oscillators with tables of their own, unison, sub and filter. */
void setFullPatch (Params& params, bool playsPattern)
{
    *params.arpActive = playsPattern ? 1 : 0;
    *params.sound.unison = 2;

    for (auto table = 2; auto& oscillator : params.sound.synth.oscillators.oscillators)
        static_cast<juce::AudioParameterChoice&> (*oscillator.type) = (table += 7);
}

/** Of this thread, as other programs may want the processor at the same time. */
double secondsWorked()
{
    std::timespec time {};
    clock_gettime (CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double> (time.tv_sec) + 1.0e-9 * static_cast<double> (time.tv_nsec);
}

/** Keys that are heard directly, or through the pattern; without keys nothing sounds. Times each block by itself. */
void synthBlock (benchmark::State& run)
{
    Performance performance (blockSize);
    Tests::drawWalk (performance.processor.getState().patterns);
    setFullPatch (performance.processor.getState().params, run.range (0) != 0);
    performance.start();
    performance.holdKeys (static_cast<int> (run.range (1)), 36, 2);

    for (auto warmUp = 0; warmUp < 1000; ++warmUp)
        performance.nextBlock();

    std::vector<double> times;
    times.reserve (blocksOfRun);

    for (auto _ : run)
    {
        const auto start = secondsWorked();
        performance.nextBlock();
        times.push_back (secondsWorked() - start);
        run.SetIterationTime (times.back());
    }

    std::ranges::sort (times);
    const auto at = [&times] (double proportion) {
        return times[static_cast<size_t> (proportion * static_cast<double> (times.size() - 1))];
    };
    run.counters["% median"] = 100.0 * at (0.5) / deadlineSeconds;
    run.counters["% p99"] = 100.0 * at (0.99) / deadlineSeconds;
    run.counters["% max"] = 100.0 * at (1.0) / deadlineSeconds;
    run.counters["p99/median"] = at (0.99) / at (0.5);
    run.counters["ns a sample"] = 1.0e9 * at (0.5) / blockSize;
}

BENCHMARK (synthBlock)
    ->Args ({ 1, 0 })
    ->Args ({ 1, 4 })
    ->Args ({ 0, 1 })
    ->Args ({ 0, allVoices })
    ->ArgNames ({ "pattern", "keys" })
    ->Iterations (blocksOfRun)
    ->UseManualTime()
    ->Unit (benchmark::kMicrosecond);
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
