#include "Support/KernelVoice.h"

#include "Support/RealTimeGuard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace Zn::Audio::Kernels
{
namespace
{
using Test::KernelTable;
using Test::KernelVoice;
using Test::LiteralTable;
using Test::LiteralVoice;
using Test::VoiceSettings;

constexpr InstructionSet allSets[] = { InstructionSet::scalar,
                                       InstructionSet::baseline,
                                       InstructionSet::avx2 };
constexpr double rate = 48000.0;
constexpr int blockSize = 64;

/** A bright cycle: 60 harmonics of random phase, peak near 1. */
LiteralTable brightTable (int numChannels, int numFrames, juce::Random& random)
{
    LiteralTable table (static_cast<size_t> (numChannels),
                        std::vector<float> (static_cast<size_t> (numFrames)));

    for (auto& channel : table)
        for (auto harmonic = 1; harmonic <= 60; ++harmonic)
        {
            const auto phase = random.nextDouble() * 6.28;

            for (size_t i = 0; i < channel.size(); ++i)
                channel[i] += static_cast<float> (
                    0.4 / harmonic
                    * std::sin (phase + 6.283185307179586 * harmonic * double (i) / double (numFrames - 1)));
        }

    return table;
}

/** Tables of a voice in both forms. All end where they begin: with a step there, a phase that is next to a whole cycle
    could be read on either side of it.
*/
struct Tables
{
    explicit Tables (juce::Random& random)
    {
        for (auto i = 0; i < 4; ++i)
            plain.push_back (brightTable (i == 2 ? 1 : 2, 2048 + 100 * i, random));

        plain.push_back ({ std::vector<float> (65536) });

        for (size_t i = 0; i < plain.back().front().size(); ++i)
            plain.back().front()[i] = std::sin (float (i) * 6.2831855f / 65535.0f);

        for (const auto& table : plain)
            interleaved.emplace_back (table);
    }

    KernelVoice::Tables views() const
    {
        KernelVoice::Tables result;
        std::transform (interleaved.begin(), interleaved.end(), result.begin(), [] (auto& table) {
            return table.view();
        });
        return result;
    }

    std::vector<LiteralTable> plain;
    std::vector<KernelTable> interleaved;
};

VoiceSettings randomSettings (const Tables& tables, juce::Random& random)
{
    VoiceSettings settings;

    for (size_t i = 0; i < 4; ++i)
    {
        auto& oscillator = settings.oscillators[i];
        oscillator.enabled = random.nextInt (5) > 0;
        oscillator.table = &tables.plain[i];
        oscillator.octave = random.nextInt (5) - 2;
        oscillator.tune = random.nextInt (49) - 24;
        oscillator.volume = random.nextInt (6) == 0 ? 0.0f : 0.3f * random.nextFloat();
        oscillator.unison = 1 + random.nextInt (2);
        oscillator.spread = random.nextFloat();
    }

    settings.subTable = &tables.plain.back();
    settings.subVolume = 1.4f * random.nextFloat();
    settings.subOctave = random.nextInt (7) - 3;
    settings.filterEnabled = random.nextInt (4) > 0;
    settings.cutoffIsAtItsTop = random.nextInt (8) == 0;
    settings.cutoff = 10.0f * std::pow (1200.0f, random.nextFloat());
    settings.resonance = 0.1f + 2.9f * random.nextFloat();
    settings.keyTracking = random.nextFloat();
    settings.filterType = random.nextInt (6) == 0 ? 1 + random.nextInt (2) : 0;
    settings.attack = 0.005f + 0.05f * random.nextFloat();
    settings.decay = 0.005f + 0.1f * random.nextFloat();
    settings.sustain = random.nextInt (3) == 0 ? 1.0f : random.nextFloat();
    settings.release = 0.005f + 0.05f * random.nextFloat();
    return settings;
}

/** What may move while a note sounds. */
void turnKnobs (VoiceSettings& settings, juce::Random& random)
{
    auto& oscillator = settings.oscillators[static_cast<size_t> (random.nextInt (4))];
    oscillator.volume = 0.3f * random.nextFloat();
    oscillator.spread = random.nextFloat();
    oscillator.unison = 1 + random.nextInt (2);
    settings.subVolume = 1.4f * random.nextFloat();
    settings.cutoff = 10.0f * std::pow (1200.0f, random.nextFloat());
}

float peakOf (const juce::AudioBuffer<float>& buffer)
{
    return buffer.getMagnitude (0, buffer.getNumSamples());
}

/** A note on both voices, with knobs turned while it lasts, and the largest difference in decibels of full scale. */
float differenceOverANote (InstructionSet set, const Tables& tables, int seed)
{
    juce::Random random (seed);
    auto settings = randomSettings (tables, random);
    const auto note = 24 + random.nextInt (80), velocity = random.nextInt (16384);
    LiteralVoice literal (rate, blockSize);
    KernelVoice voice (kernelsFor (set), tables.views(), rate, blockSize);
    literal.noteStarted (settings, note, velocity);
    voice.noteStarted (settings, note, velocity);
    auto difference = 0.0f, peak = 0.0f;

    for (auto block = 0; block < 120; ++block)
    {
        const auto numFrames = 1 + random.nextInt (blockSize);
        juce::AudioBuffer<float> expected (2, numFrames), actual (2, numFrames);
        actual.clear();

        if (block % 20 == 19)
            turnKnobs (settings, random);

        if (block == 80)
        {
            literal.noteStopped (settings);
            voice.noteStopped (settings);
        }

        literal.render (settings, expected);
        voice.render (settings,
                      { actual.getWritePointer (0), size_t (numFrames) },
                      { actual.getWritePointer (1), size_t (numFrames) });
        peak = std::max (peak, peakOf (expected));

        for (auto c = 0; c < 2; ++c)
            actual.addFrom (c, 0, expected, c, 0, numFrames, -1.0f);

        difference = std::max (difference, peakOf (actual));
    }

    EXPECT_LT (peak, 4.0f);
    return juce::Decibels::gainToDecibels (difference, -200.0f);
}

TEST (Voice, OfEverySetSoundsLikeTheLiteralOne)
{
    juce::Random random (1);
    const Tables tables (random);

    for (auto set : allSets)
        for (auto seed = 0; isAvailable (set) && seed < 60; ++seed)
            EXPECT_LT (differenceOverANote (set, tables, seed), -120.0f)
                << "set " << int (set) << ", seed " << seed;
}

TEST (Voice, IsTheSameHoweverTheBlockIsCut)
{
    juce::Random random (1);
    const Tables tables (random);

    for (auto set : allSets)
        for (size_t cut : { 1u, 7u, 32u, 63u })
        {
            if (! isAvailable (set))
                continue;

            auto settings = randomSettings (tables, random);
            const auto render = [&] (std::vector<size_t> pieces) {
                KernelVoice voice (kernelsFor (set), tables.views(), rate, blockSize);
                voice.noteStarted (settings, 60, 12000);
                std::vector<float> left (64), right (64);
                size_t start = 0;

                for (auto length : pieces)
                {
                    voice.render (settings,
                                  std::span (left).subspan (start, length),
                                  std::span (right).subspan (start, length));
                    start += length;
                }

                return left;
            };

            const auto whole = render ({ 64 }), pieces = render ({ cut, 64 - cut });

            for (size_t i = 0; i < 64; ++i)
                ASSERT_NEAR (whole[i], pieces[i], 1.0e-6f) << "set " << int (set) << ", cut at " << cut;
        }
}

TEST (Voice, NeitherAllocatesNorLocks)
{
    juce::Random random (1);
    const Tables tables (random);
    auto settings = randomSettings (tables, random);
    KernelVoice voice (bestKernels(), tables.views(), rate, blockSize);
    std::vector<float> left (blockSize), right (blockSize);
    const Zn::Test::RealTimeGuard guard;
    voice.noteStarted (settings, 60, 12000);
    voice.render (settings, left, right);
    voice.render (settings, {}, {});
    EXPECT_EQ (guard.heapCalls() + guard.lockCalls(), 0) << guard.describe();
}
} // namespace
} // namespace Zn::Audio::Kernels
