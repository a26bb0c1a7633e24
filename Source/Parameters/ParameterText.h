#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

/** How values are shown and read back. Presets store parameters as this text, so it is a file format: it never
    depends on the system's or the host's locale, nor on translations.

    Everything here is for any thread but the audio thread.
*/
namespace Zn::Parameters
{
constexpr int maxTextLength = 30; // characters that a parameter is asked for
constexpr int longestText = 1024; // characters read from a document

/** The number that a text starts with, after blanks. 0 when there is none; may be infinite or not a number. */
double leadingNumber (const juce::String& text);

/** The same, but 0 when it is not finite. */
double finiteNumber (const juce::String& text);

/** The same, rounded to the nearest whole number and limited to a range. */
int wholeNumber (const juce::String& text, int minimum, int maximum);

/** "0.50", "-3.19", "7305.27"; never "-0.00". */
juce::String twoDecimals (double value);

/** "On" or "Off". */
juce::String onOffText (bool isOn);

/** "On", "yes", "true" in any case, or a number above 0.5. */
bool isOnText (const juce::String& text);

/** Text functions for juce::AudioParameterBool: "On" and "Off", whatever the language. */
juce::AudioParameterBoolAttributes onOff();

/** Text functions for juce::AudioParameterInt: the whole number and a unit, which may be empty. */
juce::AudioParameterIntAttributes wholeNumbers (int minimum, int maximum, const juce::String& unit = {});

/** Text functions for juce::AudioParameterFloat: two decimals. */
juce::AudioParameterFloatAttributes decimals();
} // namespace Zn::Parameters
