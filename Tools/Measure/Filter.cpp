#include "Markdown.h"
#include "Sections.h"
#include "Spectrum.h"

#include "Synth/Kernels/VoiceKernels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Zn::Measure
{
namespace
{
using namespace Audio::Kernels;

constexpr size_t numSamples = 65536;
constexpr int stages = 2;               // as a voice has them
constexpr double lowest = 20.0;         // hertz: the range in which the two are compared
constexpr double highest = 20000.0;     // hertz
constexpr double faintestGain = 1.0e-4; // below this the rounding of single samples shows

struct Setting
{
    double cutoffHz, q;
};

Spectrum measuredResponse (const Setting& setting)
{
    std::vector<Stereo> frames (numSamples);
    frames.front() = { 1.0f, 1.0f };

    StereoFilterState state;
    const FilteredVoice voice { frames, makeFilterCoefficients (setting.cutoffHz, setting.q, rate), &state };
    kernelsFor (InstructionSet::scalar).filterVoices ({ &voice, 1 }, FilterType::lowPass, stages);

    std::vector<float> left (numSamples);
    std::ranges::transform (frames, left.begin(), &Stereo::left);
    return spectrumOf (left);
}

/** The analogue low-pass 1 / (s^2 + s / Q + 1), with the frequency axis bent so that half the rate is infinity. */
double analyticGain (const Setting& setting, double frequencyHz)
{
    const auto bent = [] (double hertz) { return std::tan (std::numbers::pi * hertz / rate); };
    const std::complex<double> s { 0.0, bent (frequencyHz) / bent (setting.cutoffHz) };
    return std::pow (1.0 / std::abs (s * s + s / setting.q + 1.0), stages);
}

double largestDifference (const Setting& setting, const Spectrum& measured)
{
    auto largest = 0.0;

    for (auto bin = binOf (lowest, numSamples); bin <= binOf (highest, numSamples); ++bin)
        if (const auto gain = analyticGain (setting, double (bin) * rate / double (numSamples));
            gain > faintestGain)
            largest = std::max (largest, std::abs (20.0 * std::log10 (std::abs (measured[bin]) / gain)));

    return largest;
}

juce::String rowOf (const Setting& setting)
{
    const auto measured = measuredResponse (setting);

    const auto gainsAt = [&] (double frequencyHz) -> juce::String {
        if (frequencyHz > highest)
            return "";

        const auto bin = binOf (frequencyHz, numSamples);
        const auto analytic = analyticGain (setting, double (bin) * rate / double (numSamples));
        return decibels (std::abs (measured[bin]), 1) + " / " + decibels (analytic, 1);
    };

    return row ({ number (setting.cutoffHz, 0),
                  number (setting.q, 1),
                  gainsAt (setting.cutoffHz / 2.0),
                  gainsAt (setting.cutoffHz),
                  gainsAt (setting.cutoffHz * 2.0),
                  gainsAt (setting.cutoffHz * 4.0),
                  number (largestDifference (setting, measured), 2) });
}

constexpr auto text = R"(
## Filter

The low-pass of a voice, two stages of 12 dB an octave: gain of its impulse response / gain of the analogue filter
with the frequency axis bent by the tangent, in decibels. The last column is the largest difference from 20 Hz to
20 kHz where the gain is above -80 dB.

)";
} // namespace

juce::String measureFilter()
{
    auto section =
        text
        + tableHead ({ "Cutoff Hz", "Q", "half the cutoff", "cutoff", "twice", "four times", "difference" });

    for (const auto cutoffHz : { 100.0, 1000.0, 8000.0, 20000.0 })
        for (const auto q : { 0.1, 1.0, 3.0 })
            section << rowOf ({ cutoffHz, q });

    return section;
}
} // namespace Zn::Measure
