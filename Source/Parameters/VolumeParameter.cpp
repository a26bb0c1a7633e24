#include "Parameters/VolumeParameter.h"

#include "Parameters/ParameterText.h"

#include <algorithm>
#include <cmath>

namespace Zn::Audio
{
namespace
{
constexpr double silenceDecibels = -100.0;
constexpr double loudestText = 200.0;           // above every range, and a finite gain
constexpr double octavesPerDecibel = 0.1660964; // log2 (10) / 20

/** Gain from 0 to 1 in half the control's way, with the given level in its middle. */
juce::NormalisableRange<float> gainRange (float minDecibels, float maxDecibels, float middleDecibels)
{
    juce::NormalisableRange<float> range { VolumeParameter::gainFromDecibels (double (minDecibels)),
                                           VolumeParameter::gainFromDecibels (double (maxDecibels)) };
    range.setSkewForCentre (VolumeParameter::gainFromDecibels (double (middleDecibels)));
    return range;
}

juce::AudioParameterFloatAttributes decibelTexts()
{
    return juce::AudioParameterFloatAttributes()
        .withStringFromValueFunction ([] (float gain, int) { return VolumeParameter::textFromGain (gain); })
        .withValueFromStringFunction (VolumeParameter::gainFromText);
}
} // namespace

VolumeParameter::VolumeParameter (const juce::ParameterID& identifier,
                                  const juce::String& displayName,
                                  float minDecibels,
                                  float maxDecibels,
                                  float defaultDecibels,
                                  float middleDecibels)
    : AudioParameterFloat (identifier,
                           displayName,
                           gainRange (minDecibels, maxDecibels, middleDecibels),
                           gainFromDecibels (double (defaultDecibels)),
                           decibelTexts())
{}

float VolumeParameter::gainFromDecibels (double decibels) noexcept
{
    if (! (decibels > silenceDecibels)) // true for a level that is not a number, too
        return 0.0f;

    return static_cast<float> (std::exp2 (decibels * octavesPerDecibel));
}

juce::String VolumeParameter::textFromGain (float gain)
{
    const auto decibels = gain > 0.0f ? 20.0 * std::log10 (double (gain)) : silenceDecibels;
    return Parameters::twoDecimals (std::max (decibels, silenceDecibels)) + " dB";
}

float VolumeParameter::gainFromText (const juce::String& text)
{
    const auto decibels = Parameters::leadingNumber (text);
    return std::isfinite (decibels) ? gainFromDecibels (std::min (decibels, loudestText)) : 0.0f;
}
} // namespace Zn::Audio
