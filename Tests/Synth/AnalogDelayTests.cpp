#include "Support/RealTimeGuard.h"
#include "Synth/AnalogDelay/DelayFilter.h"
#include "Synth/AnalogDelay/Params.h"
#include "Synth/FiniteSound.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Zn::Audio::AnalogDelay
{
namespace
{
constexpr double sampleRate = 48000.0;

struct Setting
{
    double delaySamples;
    float feedback, analog;
};

void set (Delay& delay, Setting setting, double rate = sampleRate)
{
    delay.filter.setAnalog (setting.analog);
    delay.setTargets (setting.delaySamples / rate, setting.feedback);
}

juce::AudioBuffer<float> impulse (int numSamples)
{
    juce::AudioBuffer<float> buffer (2, numSamples);
    buffer.clear();
    buffer.setSample (0, 0, 1.0f);
    buffer.setSample (1, 0, -0.5f);
    return buffer;
}

juce::AudioBuffer<float> noise (int numSamples, int seed)
{
    juce::Random random { seed };
    juce::AudioBuffer<float> buffer (2, numSamples);

    for (auto channel = 0; channel < 2; ++channel)
        for (auto i = 0; i < numSamples; ++i)
            buffer.setSample (channel, i, random.nextFloat() * 2.0f - 1.0f);

    return buffer;
}

/** The block's samples from `start` on, without a copy. */
juce::AudioBuffer<float> part (juce::AudioBuffer<float>& whole, int start, int length)
{
    return { whole.getArrayOfWritePointers(), 2, start, length };
}

void expectEqual (const juce::AudioBuffer<float>& a, const juce::AudioBuffer<float>& b, const char* what)
{
    for (auto channel = 0; channel < 2; ++channel)
        for (auto i = 0; i < a.getNumSamples(); ++i)
            ASSERT_EQ (a.getSample (channel, i), b.getSample (channel, i)) << what << ", sample " << i;
}
} // namespace

TEST (AnalogDelay, AnswersAnImpulse)
{
    const std::pair<Setting, std::vector<float>> rows[] {
        { { 3.0, 0.4f, 0.5f },
          { 0.0f, 0.0f, 0.0f, .0040155f, .0155055f, .0293541f, .0410343f, .0522369f, .0644781f, .0758933f } },
        { { 3.0, 0.4f, 0.0f },
          { 0.0f, 0.0f, 0.0f, .7464102f, .4585641f, -.3368409f, .1916021f, .4580283f, .4301175f } },
        { { 2.5, 0.0f, 0.0f }, { 0.0f, 0.0f, .3732051f, .6024871f, .0608616f } }
    };

    for (const auto& [setting, left] : rows)
    {
        Delay delay;
        delay.prepare (sampleRate);
        set (delay, setting);

        auto buffer = impulse (static_cast<int> (left.size()));
        delay.process (buffer);

        for (size_t i = 0; i < left.size(); ++i)
        {
            EXPECT_NEAR (buffer.getSample (0, int (i)), left[i], 1e-5f)
                << setting.delaySamples << " at " << i;
            EXPECT_NEAR (buffer.getSample (1, int (i)), -0.5f * left[i], 1e-5f) << "right";
        }
    }
}

TEST (AnalogDelay, LimitsATimeThatIsLongerThanItsLine)
{
    constexpr auto lowRate = 100.0; // 402 frames, of which the last two are for interpolation
    Delay delay;
    delay.prepare (lowRate);
    set (delay, { 1e12, 0.0f, 0.0f }, lowRate);

    auto buffer = impulse (500);
    delay.process (buffer);

    for (auto i = 0; i < 400; ++i)
        ASSERT_EQ (buffer.getSample (0, i), 0.0f) << i;

    EXPECT_GT (buffer.getSample (0, 400), 0.5f);
}

TEST (AnalogDelay, SoundsTheSameHoweverTheBlockIsCut)
{
    constexpr auto length = 20000;

    const auto play = [] (int cut) {
        Delay delay;
        delay.prepare (sampleRate);
        auto sound = noise (length, 3);

        // Times change every 5000 samples, which is also in the middle of a glide of 4800 and less.
        const Setting settings[] = { { 300.0, 0.3f, 0.2f },
                                     { 2000.5, 0.1f, 0.2f },
                                     { 12.25, 0.4f, 0.2f },
                                     { 4000.0, 0.0f, 0.2f } };

        for (auto section = 0; section < 4; ++section)
        {
            set (delay, settings[section]);

            for (auto start = 0; start < length / 4; start += cut)
            {
                auto block = part (sound, section * length / 4 + start, std::min (cut, length / 4 - start));
                delay.process (block);
            }
        }

        return sound;
    };

    const auto whole = play (5000);

    for (const auto cut : { 1, 7, 64, 4801 })
        expectEqual (play (cut), whole, "cut");
}

TEST (AnalogDelay, GlidesToANewTimeAndStandsThereAtOnceAfterPrepareOrReset)
{
    Delay delay;
    delay.prepare (sampleRate);
    set (delay, { 1000.0, 0.0f, 0.0f });

    juce::AudioBuffer<float> ramp (2, 20000); // a rising line: its echo shows the delay itself
    const auto fill = [&ramp] {
        for (auto channel = 0; channel < 2; ++channel)
            for (auto i = 0; i < ramp.getNumSamples(); ++i)
                ramp.setSample (channel, i, static_cast<float> (i));
    };

    const auto delayAt = [&ramp] (int i) { return float (i) - ramp.getSample (0, i); };

    fill();
    auto first = part (ramp, 0, 5000);
    delay.process (first);
    const auto filterDelay = delayAt (4999) - 1000.0f;
    EXPECT_NEAR (filterDelay, 0.0f, 1.0f);

    set (delay, { 2000.0, 0.0f, 0.0f });
    auto second = part (ramp, 5000, 15000);
    delay.process (second);

    EXPECT_NEAR (delayAt (5000 + 2400) - filterDelay, 1500.0f, 2.0f) << "half of 0.1 s";
    EXPECT_NEAR (delayAt (5000 + 4900) - filterDelay, 2000.0f, 0.1f);

    delay.reset();
    set (delay, { 3000.0, 0.0f, 0.0f });
    fill();
    delay.process (ramp);
    EXPECT_NEAR (delayAt (3100) - filterDelay, 3000.0f, 0.1f);
}

TEST (AnalogDelay, GlidesWithoutAClick)
{
    constexpr auto hertz = 100.0, steepest = 6.2831853 * hertz / sampleRate; // of the sine

    for (const auto& [from, to] :
         { std::pair { 23478.3, 21600.0 }, { 24000.0, 24123.4 }, { 190000.0, 180000.7 } })
    {
        Delay delay;
        delay.prepare (sampleRate);
        set (delay, { from, 0.0f, 0.0f });

        juce::AudioBuffer<float> sound (2, 220000);

        for (auto i = 0; i < sound.getNumSamples(); ++i)
            for (auto channel = 0; channel < 2; ++channel)
                sound.setSample (channel, i, static_cast<float> (std::sin (steepest * i)));

        auto before = part (sound, 0, 200000), glide = part (sound, 200000, 20000);
        delay.process (before);
        set (delay, { to, 0.0f, 0.0f });
        delay.process (glide);

        // A pitch that is bent to so many times itself makes the sine so many times as steep.
        const auto limit = 1.01 * steepest * (1.0 + std::abs (to - from) / 4800.0);

        for (auto i = 1; i < glide.getNumSamples(); ++i)
            ASSERT_LT (std::abs (glide.getSample (0, i) - glide.getSample (0, i - 1)), limit)
                << from << " to " << to << ", sample " << i;
    }
}

TEST (AnalogDelay, ForgetsEverythingWhenItIsReset)
{
    juce::Random random { 11 };
    Delay used;
    used.prepare (1000.0);

    for (auto round = 0; round < 40; ++round)
    {
        Delay fresh;
        fresh.prepare (1000.0);
        used.reset();

        for (auto block = 0; block < 12; ++block)
        {
            const Setting setting { random.nextInt (4500) + 0.5, 0.4f, 0.3f };
            const auto longest = round % 2 == 0 ? 900 : 40; // samples: beyond a glide, and within one
            auto expected = noise (1 + random.nextInt (longest), round * 100 + block);
            auto sound = expected;

            set (fresh, setting, 1000.0);
            set (used, setting, 1000.0);
            fresh.process (expected);
            used.process (sound);
            expectEqual (sound, expected, "after reset");
        }
    }
}

TEST (AnalogDelay, StaysBoundedWithAllTheFeedbackThereIs)
{
    for (const auto rate : { 8000.0, 32000.0, 48000.0, 384000.0 })
        for (const auto analog : { 0.0f, 0.5f, 1.0f, 5.0f, std::numeric_limits<float>::quiet_NaN() })
        {
            Delay delay;
            delay.prepare (rate);
            set (delay, { 10.0, 7.0f, analog }, rate);

            for (auto block = 0; block < 20; ++block)
            {
                auto sound = noise (4096, block);
                delay.process (sound);
                ASSERT_TRUE (isFinite (sound)) << rate << " " << analog;
                ASSERT_LT (sound.getMagnitude (0, 4096), 20.0f) << rate << " " << analog;
            }
        }
}

TEST (AnalogDelay, IsSafeForTheAudioThread)
{
    Params params;
    Delay delay;
    delay.prepare (sampleRate);
    auto sound = noise (512, 1);

    const Zn::Tests::ExpectRealTimeSafe guard { "delay" };
    auto wasFinite = true;

    for (const auto tempo : { 120.0, 90.0, 0.0 })
    {
        follow (delay, params, tempo);
        delay.process (sound);
        wasFinite = wasFinite && isFinite (sound);
        delay.reset();
    }

    EXPECT_TRUE (wasFinite);
}

TEST (DelayFilter, SetsItsToneByTheAnalogKnob)
{
    const std::pair<float, float> rows[] { { 0.0f, 20000.0f },    { 0.25f, 5605.4035f }, { 0.5f, 1000.0f },
                                           { 0.75f, 140.70347f }, { 1.0f, 100.0f },      { -3.0f, 20000.0f },
                                           { 3.0f, 100.0f } };

    for (const auto& [analog, cutoff] : rows)
        EXPECT_NEAR (toneCutoffHz (analog), cutoff, cutoff * 1e-5f) << analog;

    DelayFilter filter;
    filter.prepare (sampleRate);
    filter.setAnalog (0.0f);
    EXPECT_NEAR (filter.getCoefficients().g, 3.7320508f, 1e-5f);
    EXPECT_NEAR (filter.getCoefficients().h, 0.053589838f, 1e-6f);

    filter.setAnalog (0.25f);
    EXPECT_NEAR (filter.getCoefficients().g, 0.38426986f, 1e-5f);
}

TEST (FiniteSound, FindsWhatIsNoNumber)
{
    juce::AudioBuffer<float> sound (2, 37);

    for (const auto bad : { std::numeric_limits<float>::quiet_NaN(), HUGE_VALF, -HUGE_VALF })
        for (const auto place : { 0, 8, 36 })
        {
            sound.clear();
            sound.setSample (0, 5, std::numeric_limits<float>::max());
            sound.setSample (1, 5, std::numeric_limits<float>::max());
            ASSERT_TRUE (isFinite (sound));

            sound.setSample (1, place, bad);
            EXPECT_FALSE (isFinite (sound)) << bad << " at " << place;
        }
}
} // namespace Zn::Audio::AnalogDelay
