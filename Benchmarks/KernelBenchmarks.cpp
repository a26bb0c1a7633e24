#include "Support/KernelTable.h"
#include "Support/LiteralVoice.h"
#include "Synth/WavetableSynth/Voice.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <ctime>
#include <memory>

namespace Zn::Audio::Kernels
{
namespace
{
using Tests::KernelTable;
using Tests::LiteralTable;
using Tests::LiteralVoice;
using WavetableSynth::Voice;

constexpr double rate = 48000.0;
constexpr int blockSize = 64;
constexpr int longTable = 20480,
              shortTable = 1024; // frames: four long ones fill an L2, four short ones an L1

/** A patch that leaves nothing out: four oscillators with tables of their own, unison, sub and two filter stages. */
struct Patch
{
    explicit Patch (int numFrames)
    {
        for (auto i = 0; i < 4; ++i)
            plain.push_back (cycle (2, numFrames, i + 1));

        plain.push_back (cycle (1, 65536, 1));

        for (const auto& table : plain)
            interleaved.emplace_back (table);

        for (size_t i = 0; i < 4; ++i)
        {
            settings.oscillators[i].table = &plain[i];
            settings.oscillators[i].unison = 2;
            settings.oscillators[i].octave = static_cast<int> (i) - 1;

            ours.oscillators[i] = { .table = interleaved[i].view(),
                                    .octave = settings.oscillators[i].octave,
                                    .unison = 2 };
        }

        settings.subTable = &plain.back();
        ours.sub.table = interleaved.back().view();
        ours.envelope =
            makeEnvelopeRates (settings.attack, settings.decay, settings.sustain, settings.release, rate);
        ours.sampleRate = rate;
    }

    static LiteralTable cycle (int numChannels, int numFrames, int harmonic)
    {
        LiteralTable table (static_cast<size_t> (numChannels),
                            std::vector<float> (static_cast<size_t> (numFrames)));

        for (auto& channel : table)
            for (size_t i = 0; i < channel.size(); ++i)
                channel[i] = std::sin (6.2831853f * static_cast<float> (harmonic) * static_cast<float> (i)
                                       / static_cast<float> (numFrames - 1));

        return table;
    }

    static int note (int voice) { return 48 + 5 * voice % 37; }

    std::vector<LiteralTable> plain;
    std::vector<KernelTable> interleaved;
    Tests::VoiceSettings settings;      // of the literal voice
    WavetableSynth::VoiceSettings ours; // the same
};

/** The voices of the synth, in its groups. */
class KernelVoices
{
public:
    KernelVoices (InstructionSet set, const Patch& patch, int numVoices)
    {
        for (auto i = 0; i < numVoices; ++i)
        {
            auto& voice = *voices.emplace_back (std::make_unique<Voice>());
            voice.use (patch.ours, kernelsFor (set));
            voice.prepare (rate);
            voice.start (juce::MPENote (1,
                                        Patch::note (i),
                                        juce::MPEValue::from14BitInt (12000),
                                        juce::MPEValue::centreValue(),
                                        juce::MPEValue::minValue(),
                                        juce::MPEValue::centreValue()),
                         0);
            pointers.push_back (&voice);
        }
    }

    void render()
    {
        left.fill (0.0f);
        right.fill (0.0f);

        for (std::span<Voice* const> rest = pointers; ! rest.empty();)
        {
            const auto group = rest.first (std::min (rest.size(), size_t (Voice::largestGroup)));
            Voice::renderGroup (group, scratch, left, right);
            rest = rest.subspan (group.size());
        }

        benchmark::DoNotOptimize (left.data());
        benchmark::ClobberMemory();
    }

private:
    std::vector<std::unique_ptr<Voice>> voices;
    std::vector<Voice*> pointers;
    Voice::Scratch scratch;
    std::array<float, blockSize> left {}, right {};
};

class LiteralVoices
{
public:
    LiteralVoices (const Patch& patchToPlay, int numVoices) : patch (patchToPlay)
    {
        for (auto i = 0; i < numVoices; ++i)
            voices.emplace_back (std::make_unique<LiteralVoice> (rate, blockSize))
                ->noteStarted (patch.settings, Patch::note (i), 12000);
    }

    void render()
    {
        sum.clear();

        for (auto& voice : voices)
        {
            voice->render (patch.settings, block);
            sum.addFrom (0, 0, block, 0, 0, blockSize);
            sum.addFrom (1, 0, block, 1, 0, blockSize);
        }

        benchmark::DoNotOptimize (sum.getReadPointer (0));
        benchmark::ClobberMemory();
    }

private:
    const Patch& patch;
    std::vector<std::unique_ptr<LiteralVoice>> voices;
    juce::AudioBuffer<float> block { 2, blockSize }, sum { 2, blockSize };
};

/** Of the processor, as other programs may want it at the same time. */
double secondsOf (auto&& work)
{
    const auto start = std::clock();
    work();
    return static_cast<double> (std::clock() - start) / CLOCKS_PER_SEC;
}

double median (std::vector<double>& numbers)
{
    if (numbers.empty())
        return 0.0;

    std::nth_element (numbers.begin(), numbers.begin() + std::ssize (numbers) / 2, numbers.end());
    return numbers[numbers.size() / 2];
}

/** Renders the patch by turns in both forms, so that whatever else the machine does meets both. */
void voice (benchmark::State& run)
{
    const auto set = static_cast<InstructionSet> (run.range (0));
    const auto numVoices = static_cast<int> (run.range (2));
    const auto blocksATurn = 64 / numVoices; // long enough for the clock, short enough for equal chances

    if (! isAvailable (set))
    {
        run.SkipWithError ("this processor lacks the instructions");
        return;
    }

    const Patch patch (static_cast<int> (run.range (1)));
    LiteralVoices literal (patch, numVoices);
    KernelVoices kernels (set, patch, numVoices);
    std::vector<double> literalTimes, kernelTimes, ratios;
    const auto nanosecondsASample = 1.0e9 / (blocksATurn * blockSize * numVoices);

    for (auto _ : run)
    {
        const auto turn = [&] (auto& voices) {
            for (auto block = 0; block < blocksATurn; ++block)
                voices.render();
        };

        const auto literalTime = secondsOf ([&] { turn (literal); });
        const auto kernelTime = secondsOf ([&] { turn (kernels); });
        literalTimes.push_back (literalTime * nanosecondsASample);
        kernelTimes.push_back (kernelTime * nanosecondsASample);
        ratios.push_back (literalTime / kernelTime);
        run.SetIterationTime (kernelTime);
    }

    // Medians, in nanoseconds of one voice and sample.
    run.counters["literal"] = median (literalTimes);
    run.counters["kernels"] = median (kernelTimes);
    run.counters["ratio"] = median (ratios);
}

const std::vector<std::int64_t> sets { int (InstructionSet::scalar),
                                       int (InstructionSet::baseline),
                                       int (InstructionSet::avx2) };

BENCHMARK (voice)
    ->ArgsProduct ({ sets, { shortTable, longTable }, { 1, 4, 8, 32 } })
    ->ArgNames ({ "set", "frames", "voices" })
    ->UseManualTime()
    ->Unit (benchmark::kMicrosecond);

/** One unison voice, both sides. */
void table (benchmark::State& run)
{
    const auto& kernels = kernelsFor (static_cast<InstructionSet> (run.range (0)));
    const KernelTable source (
        Patch::cycle (static_cast<int> (run.range (2)), static_cast<int> (run.range (1)), 1));
    TableRead read { source.view(), 0.0, 440.0 / rate };
    std::array<Stereo, blockSize> frames {};

    for (auto _ : run)
    {
        kernels.addTable (read, frames);
        benchmark::DoNotOptimize (frames.data());
        benchmark::ClobberMemory();
    }

    run.counters["sample"] = benchmark::Counter (double (run.iterations() * blockSize),
                                                 benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK (table)
    ->ArgsProduct ({ sets, { shortTable, longTable }, { 1, 2 } })
    ->ArgNames ({ "set", "frames", "channels" });

void filter (benchmark::State& run)
{
    const auto& kernels = kernelsFor (static_cast<InstructionSet> (run.range (0)));
    const auto numVoices = static_cast<size_t> (run.range (1));
    std::vector<std::array<Stereo, blockSize>> sounds (numVoices);
    std::vector<StereoFilterState> states (numVoices);
    std::vector<FilteredVoice> voices;

    for (size_t i = 0; i < numVoices; ++i)
        voices.push_back ({ sounds[i], makeFilterCoefficients (1000.0, 1.0, rate), &states[i] });

    for (auto _ : run)
    {
        kernels.filterVoices (voices, FilterType::lowPass, 2);
        benchmark::DoNotOptimize (sounds.data());
        benchmark::ClobberMemory();
    }

    run.counters["sample"] = benchmark::Counter (double (run.iterations()) * blockSize * double (numVoices),
                                                 benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK (filter)->ArgsProduct ({ sets, { 1, 2, 3, 4, 8, 32 } })->ArgNames ({ "set", "voices" });
} // namespace
} // namespace Zn::Audio::Kernels
