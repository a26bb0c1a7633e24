#include "GUI/Sound/EchoTaps.h"

#include "Synth/AnalogDelay/DelayFilter.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <cmath>

namespace Zn::GUI
{
float toneBrightness (float analog)
{
    // In octaves, as treble is heard: the whole range of the tone from dark to bright.
    const auto darkest = Audio::AnalogDelay::toneCutoffHz (1.0f);
    const auto brightest = Audio::AnalogDelay::toneCutoffHz (0.0f);
    return std::log (Audio::AnalogDelay::toneCutoffHz (analog) / darkest) / std::log (brightest / darkest);
}

std::vector<EchoTap> echoTaps (const EchoSettings& settings, double longestSeconds, float quietestDecibels)
{
    const auto decibelsOf = [quietestDecibels] (float gain) {
        return juce::Decibels::gainToDecibels (gain, quietestDecibels);
    };

    // An echo goes round both through the tone filter and beside it.
    const auto loopGain = 2.0f * settings.feedback;

    // The blend has equal power in all its places.
    const auto quarterTurn = juce::MathConstants<float>::halfPi;
    const auto dry = settings.mix > 0.0f ? std::cos (settings.mix * quarterTurn) : 1.0f;
    const auto wet = settings.mix > 0.0f ? std::sin (settings.mix * quarterTurn) : 1.0f;
    const auto brightness = toneBrightness (settings.analog);

    std::vector<EchoTap> taps { { 0.0, decibelsOf (dry), 1.0f } };
    auto gain = wet, treble = brightness;

    for (auto time = settings.seconds; time <= longestSeconds && decibelsOf (gain) > quietestDecibels;
         time += settings.seconds)
    {
        taps.push_back ({ time, decibelsOf (gain), treble });
        gain *= loopGain;
        treble *= brightness;
    }

    return taps;
}
} // namespace Zn::GUI
