#include "Synth/Sampler/ResampledInternalBuffer.h"
#include "Synth/WavBytes.h"

#include <gtest/gtest.h>

#include <limits>

namespace Zn::Audio::Sampler
{
namespace
{
using namespace Tests;

constexpr double tableRate = 1920000.0;

juce::AudioBuffer<float> resampled (juce::MemoryBlock bytes, int block = 1024)
{
    const BytesSource source { std::move (bytes) };
    const auto reader = Source::Reader::open (source);

    return reader == nullptr ? juce::AudioBuffer<float> {}
                             : ResampledInternalBuffer { *reader, tableRate, block }.getBuffer();
}

/** The largest difference from the shape itself, taken over the closed cycle, in decibels of full scale. */
double errorDecibels (const juce::AudioBuffer<float>& cycle, int channel, const Shape& shape)
{
    const auto last = cycle.getNumSamples() - 1;
    auto error = 1e-12;

    for (auto i = 0; i <= last; ++i)
        error =
            std::max (error, std::abs (double (cycle.getSample (channel, i)) - shape (double (i) / last)));

    return 20.0 * std::log10 (error);
}
} // namespace

TEST (Resampling, GivesTheShapeBetweenTheSamples)
{
    const std::tuple<const char*, int, double, Shape, int> rows[] {
        { "sine", 2048, 192000.0, sine, 20480 },
        { "saw as dense as the program's own", 2048, 192000.0, saw (192), 20480 },
        { "saw up to four fifths of the band", 600, 48000.0, saw (240), 24000 },
        { "odd length and rate", 337, 44100.0, saw (100), 14672 },
        { "sine of a few samples", 8, 44100.0, sine, 348 },
        { "no more samples than before", 1000, tableRate, saw (100), 1000 },
        { "longest", 65536, 44100.0, sine, 262144 },
    };

    for (const auto& [name, numFrames, fileRate, shape, numSamples] : rows)
    {
        const auto cycle = resampled (wavBytes (cycleOf (numFrames, { shape }), { fileRate }));

        EXPECT_EQ (cycle.getNumSamples(), numSamples) << name;
        EXPECT_LT (errorDecibels (cycle, 0, shape), -95.0) << name;
        EXPECT_EQ (cycle.getSample (0, 0), cycle.getSample (0, numSamples - 1)) << name;
    }
}

TEST (Resampling, KeepsTwoSidesApartAndOneConstant)
{
    const auto cycle = resampled (wavBytes (cycleOf (2048, { sine, [] (double) { return 0.25; } })));

    ASSERT_EQ (cycle.getNumChannels(), 2);
    EXPECT_LT (errorDecibels (cycle, 0, sine), -100.0);
    EXPECT_LT (errorDecibels (cycle, 1, [] (double) { return 0.25; }), -130.0);
}

TEST (Resampling, TakesTheFirstTwoChannelsAndOneForTwoThatAreAlike)
{
    const auto three = resampled (wavBytes (cycleOf (64, { sine, saw (3), saw (5) })));
    const auto alike = resampled (wavBytes (cycleOf (64, { sine, sine })));

    ASSERT_EQ (three.getNumChannels(), 2);
    EXPECT_LT (errorDecibels (three, 1, saw (3)), -95.0);
    EXPECT_EQ (alike.getNumChannels(), 1);
}

TEST (Resampling, DoesNotDependOnTheBlockOrTheRun)
{
    const auto bytes = wavBytes (cycleOf (2000, { saw (60), sine }), { 96000.0, 24 });
    const auto once = resampled (bytes);

    for (const auto block : { 1024, 1, 77, 65536, 0, -5 })
    {
        const auto again = resampled (bytes, block);
        ASSERT_EQ (again.getNumSamples(), once.getNumSamples());

        for (auto channel = 0; channel < 2; ++channel)
            for (auto i = 0; i < once.getNumSamples(); ++i)
                ASSERT_EQ (again.getSample (channel, i), once.getSample (channel, i)) << block;
    }
}

TEST (Resampling, RefusesWhatIsNoCycle)
{
    const auto good = wavBytes (cycleOf (64, { sine }));

    const auto changed = [&good] (size_t offsetInFormat, std::vector<int> bytes) {
        auto copy = good;
        const auto offset = std::string (good.begin(), good.end()).find ("fmt ") + 8 + offsetInFormat;

        for (size_t i = 0; i < bytes.size(); ++i)
            copy[offset + i] = static_cast<char> (bytes[i]);

        return copy;
    };

    const auto cut = [&good] (size_t size) {
        auto copy = good;
        copy.setSize (size);
        return copy;
    };

    const auto notANumber = std::numeric_limits<double>::quiet_NaN();
    const auto infinite = std::numeric_limits<double>::infinity();
    ASSERT_EQ (resampled (good).getNumChannels(), 1);

    for (const auto& [name, bytes] : std::vector<std::pair<const char*, juce::MemoryBlock>> {
             { "text", juce::MemoryBlock ("not a sound", 11) },
             { "no samples", wavBytes (cycleOf (0, { sine })) },
             { "one sample", wavBytes (cycleOf (1, { sine })) },
             { "too long", wavBytes (cycleOf (65537, { sine })) },
             { "NaN",
               wavBytes (cycleOf (64, { [=] (double phase) { return phase > 0.7 ? notANumber : 0.0; } })) },
             { "infinite",
               wavBytes (cycleOf (64, { [=] (double phase) { return phase > 0.7 ? infinite : 0.0; } })) },
             { "cut in the header", cut (30) },
             { "cut in the samples", cut (good.getSize() - 1) },
             { "65535 channels", changed (2, { 255, 255 }) },
             { "no rate", changed (4, { 0, 0, 0, 0 }) },
             { "rate beyond all sense", changed (4, { 255, 255, 255, 127 }) },
             { "no bits", changed (14, { 0, 0 }) },
         })
        EXPECT_EQ (resampled (bytes).getNumChannels(), 0) << name;

    EXPECT_EQ (Source::Reader::open (MemorySource { {} }), nullptr);
    EXPECT_EQ (Source::Reader::open (FileSource { juce::File::createTempFile ("missing.wav") }), nullptr);
}

TEST (SourceReader, AnyDamageToAHeaderIsRefusedOrRead)
{
    const auto good = wavBytes (cycleOf (64, { sine, saw (4) }), { 44100.0, 16 });

    for (size_t offset = 0; offset < std::min (good.getSize(), size_t (60)); ++offset)
        for (const auto value : { 0, 1, 127, 128, 255 })
        {
            auto bytes = good;
            bytes[offset] = static_cast<char> (value);
            const auto cycle = resampled (bytes);
            EXPECT_LE (cycle.getNumSamples(), ResampledInternalBuffer::maxSamples) << offset << " " << value;
        }
}
} // namespace Zn::Audio::Sampler
