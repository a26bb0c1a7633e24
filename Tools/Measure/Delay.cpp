#include "Markdown.h"
#include "Sections.h"
#include "Spectrum.h"

#include "Synth/AnalogDelay/DelayFilter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Zn::Measure
{
namespace
{
using Audio::AnalogDelay::Delay;

constexpr size_t echoLength = 16384; // samples of one echo, and of the delay
constexpr int numEchoes = 4;
constexpr float mostFeedback = 0.4f;

std::vector<float> run (Delay& delay, std::vector<float> sound)
{
    juce::AudioBuffer<float> audio (2, static_cast<int> (sound.size()));

    for (auto channel = 0; channel < 2; ++channel)
        audio.copyFrom (channel, 0, sound.data(), audio.getNumSamples());

    delay.process (audio);
    std::copy_n (audio.getReadPointer (0), sound.size(), sound.begin());
    return sound;
}

/** The echoes of an impulse, each in a run of its own. */
std::vector<std::vector<float>> echoesOf (float analog)
{
    Delay delay;
    delay.prepare (rate);
    delay.filter.setAnalog (analog);
    delay.setTargets (echoLength / rate, mostFeedback);

    std::vector<float> impulse ((numEchoes + 1) * echoLength);
    impulse.front() = 1.0f;
    const auto sound = run (delay, impulse);

    std::vector<std::vector<float>> echoes;

    for (auto echo = sound.begin() + echoLength; echo != sound.end(); echo += echoLength)
        echoes.emplace_back (echo, echo + echoLength);

    return echoes;
}

juce::String peakOf (const std::vector<float>& echo)
{
    const auto magnitude = [] (float sample) { return std::abs (sample); };
    const auto peak = std::ranges::max_element (echo, {}, magnitude);
    return decibels (double (std::abs (*peak)), 1) + " at "
           + juce::String (std::distance (echo.begin(), peak));
}

juce::String echoRow (float analog)
{
    const auto echoes = echoesOf (analog);
    const auto first = spectrumOf (echoes[0]), second = spectrumOf (echoes[1]);
    auto gain = 0.0, loudestHz = 0.0;

    // What the tone has taken away from both echoes says nothing about their ratio.
    for (size_t bin = 0; bin < first.size(); ++bin)
        if (const auto ratio = std::abs (second[bin] / first[bin]);
            std::abs (first[bin]) > 0.01 && ratio > gain)
        {
            gain = ratio;
            loudestHz = double (bin) * rate / double (echoLength);
        }

    return row ({ number (double (analog), 2),
                  peakOf (echoes[0]),
                  peakOf (echoes[1]),
                  peakOf (echoes[2]),
                  peakOf (echoes[3]),
                  number (std::abs (second.front() / first.front()), 3),
                  number (gain, 3) + " at " + number (loudestHz, 0) + " Hz" });
}

/** Cycles that pass in a run, counted between its first and its last crossing of nought from below. */
double frequencyOf (std::span<const float> samples)
{
    auto first = -1.0, last = 0.0;
    auto cycles = -1;

    for (size_t i = 1; i < samples.size(); ++i)
        if (samples[i - 1] < 0.0f && samples[i] >= 0.0f)
        {
            last = double (i) - double (samples[i]) / (double (samples[i]) - double (samples[i - 1]));
            first = ++cycles == 0 ? last : first;
        }

    return cycles * rate / (last - first);
}

juce::String glideRow (double from, double to)
{
    constexpr auto toneHz = 1000.0;
    constexpr size_t glideStart = 48000, glideLength = 4800, margin = 200; // samples
    std::vector<float> tone (glideStart + 2 * glideLength);

    for (size_t i = 0; i < tone.size(); ++i)
        tone[i] = static_cast<float> (std::sin (2.0 * std::numbers::pi * toneHz * double (i) / rate));

    Delay delay;
    delay.prepare (rate);
    delay.filter.setAnalog (0.0f);
    delay.setTargets (from, 0.0f);
    run (delay, { tone.begin(), tone.begin() + glideStart });
    delay.setTargets (to, 0.0f);
    const auto echo = run (delay, { tone.begin() + glideStart, tone.end() });

    const auto gliding = frequencyOf (std::span (echo).first (glideLength - margin).subspan (margin));
    const auto behind = frequencyOf (std::span (echo).subspan (glideLength + margin));
    const auto expected = 1.0 - (to - from) * rate / double (glideLength);

    return row ({ number (from * 1000.0, 0) + " to " + number (to * 1000.0, 0),
                  number (expected, 3),
                  number (gliding / toneHz, 3),
                  number (behind / toneHz, 3) });
}

constexpr auto impulseText = R"(
## Delay

An impulse with Feedback at 0.40: peak of each echo in dBFS, and how many samples behind the delay's time it comes. The
gain of the loop is the second echo against the first: all of what comes back is fed in again beside the tone's
low-pass as well as through it, so it is up to twice the parameter and a little more where the low-pass rises. Below 1
everywhere, the echoes die away.

)";

constexpr auto glideText = R"(
A new time is reached in 0.1 s, during which the echo's pitch is bent by the ratio of the glide; measured with 1 kHz.

)";
} // namespace

juce::String measureDelay()
{
    auto section =
        impulseText
        + tableHead ({ "Analog", "1st", "2nd", "3rd", "4th", "gain of the loop at DC", "at most" });

    for (const auto analog : { 0.0f, 0.25f, 0.5f, 0.75f, 1.0f })
        section << echoRow (analog);

    section << glideText << tableHead ({ "Time in ms", "expected ratio", "measured", "afterwards" });

    for (const auto& [from, to] : { std::pair { 0.3, 0.29 }, { 0.3, 0.25 }, { 0.25, 0.3 }, { 0.5, 0.25 } })
        section << glideRow (from, to);

    return section;
}
} // namespace Zn::Measure
