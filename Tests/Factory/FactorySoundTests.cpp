#include "Factory/PackedPresets.h"
#include "Foundation/Singleton.h"
#include "Plugin/Vornel/Processor.h"
#include "Support/Documents.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr double rate = 48000.0;
constexpr int blockSize = 480;

double decibels (double gain)
{
    return 20.0 * std::log10 (std::max (gain, 1e-9));
}

struct Level
{
    double peak = 0.0, sum = 0.0, sumOfSquares = 0.0;
    int numSamples = 0;

    void add (const juce::AudioBuffer<float>& audio)
    {
        for (auto channel = 0; channel < audio.getNumChannels(); ++channel)
            for (const auto sample :
                 std::span (audio.getReadPointer (channel), size_t (audio.getNumSamples())))
            {
                peak = std::max (peak, std::abs (double (sample)));
                sum += double (sample);
                sumOfSquares += double (sample) * double (sample);
                ++numSamples;
            }
    }

    double rms() const { return std::sqrt (sumOfSquares / numSamples); }
    double offset() const { return std::abs (sum / numSamples); }
};

/** The plug-in as it opens, with a sound of the factory and four keys held. */
struct FactorySounds : ::testing::Test
{
    FactorySounds()
    {
        for (const auto& preset : Factory::patternPresets())
            if (preset.name() == "WELCOME")
                Tests::load (processor.getState(), preset.document());
    }

    void choose (const Factory::Packed& sound)
    {
        Tests::load (processor.getState().params.sound, sound.document().at ("Params"));
        processor.prepareToPlay (rate, blockSize);
    }

    Level play (double seconds, bool keysAreDown)
    {
        Level level;
        juce::AudioBuffer<float> audio (2, blockSize);
        juce::MidiBuffer midi;

        for (const auto key : { 48, 55, 60, 64 })
            midi.addEvent (keysAreDown ? juce::MidiMessage::noteOn (1, key, 0.8f)
                                       : juce::MidiMessage::noteOff (1, key),
                           0);

        for (auto block = 0; block < juce::roundToInt (seconds * rate / blockSize); ++block)
        {
            processor.processBlock (audio, midi);
            midi.clear();
            level.add (audio);
        }

        return level;
    }

    const Singleton::UserToken singletons;
    Processor processor;
};

TEST_F (FactorySounds, AreAboutEquallyLoudAndLeaveRoom)
{
    for (const auto& sound : Factory::soundPresets())
    {
        choose (sound);
        const auto level = play (4.8, true);

        EXPECT_NEAR (decibels (level.peak), -10.0, 4.0) << sound.path;
        EXPECT_NEAR (decibels (level.rms()), -23.0, 4.0) << sound.path;
        EXPECT_LT (decibels (level.offset()), -60.0) << sound.path;
    }
}

TEST_F (FactorySounds, FadeAwayWhenTheKeysAreReleased)
{
    for (const auto& sound : Factory::soundPresets())
    {
        choose (sound);
        play (1.0, true);
        play (6.0, false);

        EXPECT_LT (decibels (play (0.1, false).peak), -66.0) << sound.path;
    }
}
} // namespace
} // namespace Zn::Audio::Plugins::Vornel
