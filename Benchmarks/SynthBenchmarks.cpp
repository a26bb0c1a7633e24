#include "Plugin/Vornel/Processor.h"
#include "Support/TestPlayHead.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr double rate = 48000.0;
constexpr int blockSize = 64;
constexpr double deadlineSeconds = blockSize / rate;
constexpr int blocksOfRun = 40000; // 53 s of sound: the 99th percentile stands on the 400 slowest
constexpr int allVoices = WavetableSynth::Synth::numVoices;

/** The whole plug-in with a patch that leaves nothing out: four oscillators with tables of their own, unison, sub and
    filter.
*/
class Instrument
{
public:
    explicit Instrument (bool playsPattern)
    {
        auto& params = processor.getState().params;
        *params.arpActive = playsPattern ? 1 : 0;
        *params.sound.unison = 2;

        for (auto table = 2; auto& oscillator : params.sound.synth.oscillators.oscillators)
            static_cast<juce::AudioParameterChoice&> (*oscillator.type) = (table += 7);

        processor.setPlayHead (&song);
        processor.prepareToPlay (rate, blockSize);
        midi.ensureSize (32768);
    }

    ~Instrument() { processor.setPlayHead (nullptr); }

    void holdKeys (int numKeys)
    {
        constexpr auto velocity = juce::uint8 (100);

        for (auto key = 0; key < numKeys; ++key)
            midi.addEvent (juce::MidiMessage::noteOn (1, 36 + 2 * key, velocity), 0);
    }

    void nextBlock()
    {
        processor.processBlock (audio, midi);
        midi.clear();
        song.advance (blockSize);
    }

private:
    Processor processor;
    Test::TestPlayHead song { rate };
    juce::AudioBuffer<float> audio { 2, blockSize };
    juce::MidiBuffer midi;
};

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
    const auto playsPattern = run.range (0) != 0;
    Instrument instrument (playsPattern);
    instrument.holdKeys (static_cast<int> (run.range (1)));

    for (auto warmUp = 0; warmUp < 1000; ++warmUp)
        instrument.nextBlock();

    std::vector<double> times;
    times.reserve (blocksOfRun);

    for (auto _ : run)
    {
        const auto start = secondsWorked();
        instrument.nextBlock();
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
