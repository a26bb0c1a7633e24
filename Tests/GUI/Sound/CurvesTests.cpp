#include "GUI/Sound/EchoTaps.h"
#include "GUI/Sound/EnvelopeShape.h"
#include "GUI/Sound/FilterResponse.h"
#include "GUI/Sound/WaveShape.h"
#include "Synth/AnalogDelay/DelayFilter.h"
#include "Synth/Kernels/Envelope.h"
#include "Synth/Kernels/Pitch.h"
#include "Synth/Kernels/TableRead.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

using namespace Zn;
using namespace Zn::GUI;

namespace
{
constexpr double sampleRate = 48000.0;

/** The gain of a sine that has run through both stages for a while, in decibels. */
double measuredDecibels (const Audio::Kernels::FilterCoefficients& c, double frequencyHz)
{
    std::vector<float> samples (static_cast<std::size_t> (sampleRate));

    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] =
            static_cast<float> (std::sin (2.0 * std::numbers::pi * frequencyHz * double (i) / sampleRate));

    std::array<Audio::Kernels::FilterState, 2> stages {};
    Audio::Kernels::filterChannel (samples, c, Audio::Kernels::FilterType::lowPass, stages);

    auto power = 0.0;
    const auto settled = samples.size() / 2;

    for (auto i = settled; i < samples.size(); ++i)
        power += double (samples[i]) * double (samples[i]);

    return 10.0 * std::log10 (2.0 * power / double (samples.size() - settled));
}

float levelAt (const std::vector<juce::Point<float>>& shape, float x)
{
    const auto right =
        std::ranges::lower_bound (shape, x, {}, [] (const juce::Point<float>& point) { return point.x; });

    if (right == shape.begin())
        return right->y;

    const auto left = right - 1;
    return left->y + (right->y - left->y) * (x - left->x) / (right->x - left->x);
}

/** A table with its guard frames. */
struct MonoTable
{
    explicit MonoTable (std::vector<float> cycle) : samples (std::move (cycle))
    {
        numFrames = static_cast<int> (samples.size());
        samples.insert (samples.begin(), samples.front());
        samples.insert (samples.end(), 2, samples.back());
    }

    Audio::Kernels::TableView view() const { return { samples.data() + 1, numFrames, 1 }; }

    std::vector<float> samples;
    int numFrames = 0;
};

MonoTable sineTable (int numFrames)
{
    std::vector<float> cycle;

    for (int i = 0; i < numFrames; ++i)
        cycle.push_back (std::sin (float (i) / float (numFrames - 1) * juce::MathConstants<float>::twoPi));

    return MonoTable (std::move (cycle));
}
} // namespace

TEST (FilterResponse, IsWhatTheFilterOfAVoiceDoesToSines)
{
    for (const auto& [cutoff, q] :
         { std::pair { 1000.0, 1.0 }, std::pair { 2400.0, 3.0 }, std::pair { 9000.0, 0.2 } })
        for (auto frequency : { 100.0, 900.0, 2400.0, 5000.0, 12000.0 })
        {
            const auto c = Audio::Kernels::makeFilterCoefficients (cutoff, q, sampleRate);
            EXPECT_NEAR (filterDecibels (c, frequency, sampleRate), measuredDecibels (c, frequency), 0.1)
                << cutoff << " Hz, Q " << q << ", at " << frequency;
        }
}

TEST (EnvelopeShape, IsWhatTheEnvelopeOfAVoicePlays)
{
    const EnvelopeTimes times { 0.02f, 0.18f, 0.42f, 0.24f };
    const auto shape = EnvelopeShape::of (times);
    const auto rates = Audio::Kernels::makeEnvelopeRates (times.attack,
                                                          times.decay,
                                                          times.sustain,
                                                          times.release,
                                                          sampleRate);
    Audio::Kernels::EnvelopeState state;
    Audio::Kernels::startNote (state, rates);

    const auto expectStage = [&] (EnvelopeShape::Corner from, EnvelopeShape::Corner to) {
        const auto a = shape.corners[from], b = shape.corners[to];
        const auto seconds = shape.secondsBetween (a.x, b.x);
        constexpr auto numPlaces = 4;
        std::vector<float> levels (static_cast<std::size_t> (double (seconds) * sampleRate / numPlaces));

        for (int place = 1; place <= numPlaces; ++place)
        {
            Audio::Kernels::fillLevels (state, rates, levels);
            EXPECT_NEAR (levels.back(), a.y + (b.y - a.y) * float (place) / numPlaces, 0.005f)
                << from << " to " << to << ", " << place;
        }
    };

    expectStage (EnvelopeShape::start, EnvelopeShape::peak);
    expectStage (EnvelopeShape::peak, EnvelopeShape::sustainStart);
    Audio::Kernels::stopNote (state, rates);
    expectStage (EnvelopeShape::sustainEnd, EnvelopeShape::end);
}

TEST (WaveShape, KeepsPeaksThatAreNarrowerThanAColumn)
{
    std::vector<float> cycle (20000, 0.0f);
    cycle[7001] = 0.9f;
    cycle[7003] = -0.8f;

    const auto shape = waveShape (MonoTable (cycle).view(), 90);
    const auto [lowest, highest] = std::ranges::minmax (shape, {}, &juce::Point<float>::y);
    EXPECT_EQ (highest.y, 0.9f);
    EXPECT_EQ (lowest.y, -0.8f);
    EXPECT_TRUE (std::ranges::is_sorted (shape, {}, &juce::Point<float>::x));
    EXPECT_LE (shape.size(), 2u * 90u + 2u);
}

TEST (WaveShape, FollowsWhatTheOscillatorReads)
{
    for (auto numFrames : { 2, 37, 20480 })
    {
        const auto table = sineTable (numFrames);
        const auto shape = waveShape (table.view(), 90);

        for (const auto& point : shape)
            EXPECT_NEAR (point.y, Audio::Kernels::readTable (table.view(), 0, double (point.x)), 1e-3f)
                << numFrames << " frames, " << point.x;
    }
}

TEST (WaveShape, IsMovedRoundTheCycleForTheUnisonVoice)
{
    const auto table = sineTable (20480);
    const auto shape = waveShape (table.view(), 180);
    const auto lead = unisonLead (2, 1.0f);
    const auto moved = movedAhead (shape, lead);

    EXPECT_EQ (unisonLead (1, 1.0f), 0.0f);
    EXPECT_GT (lead, unisonLead (2, 0.0f));
    EXPECT_FLOAT_EQ (moved.front().x, 0.0f);
    EXPECT_FLOAT_EQ (moved.back().x, 1.0f);

    for (auto x : { 0.05f, 0.3f, 0.85f, 0.99f })
        EXPECT_NEAR (levelAt (moved, x), levelAt (shape, x + lead > 1.0f ? x + lead - 1.0f : x + lead), 0.05f)
            << x;
}

TEST (EchoTaps, HaveTheLevelsOfTheDelayItself)
{
    constexpr auto delaySeconds = 0.01;
    Audio::AnalogDelay::Delay delay;
    delay.prepare (sampleRate);
    delay.filter.setAnalog (0.0f);
    delay.setTargets (delaySeconds, 0.28f);

    // A constant passes the tone unchanged: each echo adds what the feedback leaves of the one before.
    juce::AudioBuffer<float> audio (2, static_cast<int> (sampleRate * 0.05));
    juce::FloatVectorOperations::fill (audio.getWritePointer (0), 1.0f, audio.getNumSamples());
    juce::FloatVectorOperations::fill (audio.getWritePointer (1), 1.0f, audio.getNumSamples());
    delay.process (audio);

    const auto taps = echoTaps ({ delaySeconds, 0.28f, 0.0f, 0.0f }, 0.05, -60.0f);
    ASSERT_GE (taps.size(), 4u);

    auto before = 0.0f;

    for (std::size_t i = 1; i < 4; ++i)
    {
        const auto sample = static_cast<int> ((taps[i].seconds + delaySeconds / 2.0) * sampleRate);
        const auto level = audio.getSample (0, sample);
        EXPECT_NEAR (juce::Decibels::gainToDecibels (level - before), taps[i].decibels, 0.1f) << i;
        before = level;
    }
}

TEST (EchoTaps, EndWhereNothingIsHeardAndDarkenWithEachPass)
{
    const auto taps = echoTaps ({ 0.1, 0.4f, 0.5f, 0.5f }, 2.0, -40.0f);

    ASSERT_GT (taps.size(), 3u);
    EXPECT_GT (taps.back().decibels, -40.0f);
    EXPECT_LT (taps[2].brightness, taps[1].brightness);
    EXPECT_EQ (echoTaps ({ 0.1, 0.0f, 0.5f, 0.5f }, 2.0, -40.0f).size(), 2u) << "without feedback";
    EXPECT_EQ (echoTaps ({ 3.0, 0.4f, 0.5f, 0.5f }, 2.0, -40.0f).size(), 1u) << "beyond the picture";
}
