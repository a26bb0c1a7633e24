#include "Parameters/ParameterText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Zn::Parameters
{
double leadingNumber (const juce::String& text)
{
    return text.getDoubleValue();
}

double finiteNumber (const juce::String& text)
{
    const auto number = leadingNumber (text);
    return std::isfinite (number) ? number : 0.0;
}

int wholeNumber (const juce::String& text, int minimum, int maximum)
{
    const auto limited = juce::jlimit (double (minimum), double (maximum), finiteNumber (text));
    return juce::roundToInt (limited);
}

juce::String twoDecimals (double value)
{
    std::array<char, 64> buffer {};
    const auto end = std::to_chars (buffer.begin(), buffer.end(), value, std::chars_format::fixed, 2).ptr;
    const auto text = juce::String::fromUTF8 (buffer.data(), static_cast<int> (end - buffer.data()));

    return text == "-0.00" ? juce::String ("0.00") : text;
}

juce::String onOffText (bool isOn)
{
    return isOn ? "On" : "Off";
}

bool isOnText (const juce::String& text)
{
    const auto word = text.trim();

    for (const auto* on : { "on", "yes", "true" })
        if (word.equalsIgnoreCase (on))
            return true;

    return finiteNumber (word) > 0.5;
}

juce::AudioParameterBoolAttributes onOff()
{
    return juce::AudioParameterBoolAttributes()
        .withStringFromValueFunction ([] (bool isOn, int) { return onOffText (isOn); })
        .withValueFromStringFunction (isOnText);
}

juce::AudioParameterIntAttributes wholeNumbers (int minimum, int maximum, const juce::String& unit)
{
    return juce::AudioParameterIntAttributes()
        .withStringFromValueFunction ([unit] (int value, int) { return juce::String (value) + unit; })
        .withValueFromStringFunction (
            [minimum, maximum] (const juce::String& text) { return wholeNumber (text, minimum, maximum); });
}

juce::AudioParameterFloatAttributes decimals()
{
    return juce::AudioParameterFloatAttributes()
        .withStringFromValueFunction ([] (float value, int) { return twoDecimals (double (value)); })
        .withValueFromStringFunction ([] (const juce::String& text) {
            constexpr auto largest = double (std::numeric_limits<float>::max());
            return static_cast<float> (juce::jlimit (-largest, largest, finiteNumber (text)));
        });
}
} // namespace Zn::Parameters
