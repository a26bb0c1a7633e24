#include "GUI/Widgets/ValueText.h"

#include "GUI/Widgets/TypedValue.h"
#include "Parameters/ParameterText.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr juce::juce_wchar trueMinus = 0x2212, infinity = 0x221e;

constexpr double silenceDecibels = -100.0;
constexpr double hundred = 100.0; // percent in a whole
constexpr double thousand = 1000.0;

juce::String fixed (double value, int decimals)
{
    const auto scale = std::pow (10.0, decimals);
    const auto rounded = std::round (value * scale) / scale + 0.0; // never "-0"
    return decimals > 0 ? juce::String (rounded, decimals) : juce::String (juce::int64 (rounded));
}

juce::String withPlus (double value, int decimals)
{
    const auto text = fixed (value, decimals);
    return text.getDoubleValue() > 0.0 ? "+" + text : text;
}

juce::String writeDecibels (double decibels, ValueDetail detail)
{
    const auto unit = juce::String (detail == ValueDetail::full ? " dB" : "");

    if (decibels <= silenceDecibels)
        return "-" + juce::String::charToString (infinity) + unit;

    const auto isShort = detail == ValueDetail::shown && std::abs (decibels) >= 9.95;
    const auto decimals = (isShort ? 0 : 1) + (detail == ValueDetail::full ? 1 : 0);
    const auto precise = detail == ValueDetail::precise && std::abs (decibels) < 9.95 ? 1 : 0;
    return fixed (decibels, decimals + precise) + unit;
}

/** With one digit more there is no room for the whole unit. */
juce::String writeHertz (double hertz, ValueDetail detail)
{
    const auto more = detail == ValueDetail::shown ? 0 : 1;

    if (std::round (hertz) < thousand)
        return fixed (hertz, more) + " Hz";

    return fixed (hertz / thousand, 1 + more) + (detail == ValueDetail::precise ? " k" : " kHz");
}

juce::String writeSeconds (double seconds, int more)
{
    if (std::round (seconds * thousand) < thousand)
        return fixed (seconds * thousand, more) + " ms";

    return fixed (seconds, 2 + more) + " s";
}

/** The value in the unit that its text is in: decibels for a level, else as it is. */
double plainOf (ValueStyle style, const Parameters::Parameter& parameter)
{
    return style == ValueStyle::decibels ? Parameters::leadingNumber (parameter.getCurrentText())
                                         : double (parameter.getFloat());
}
} // namespace

juce::String withTrueMinus (const juce::String& text)
{
    return text.replaceCharacter ('-', trueMinus);
}

juce::String ValueText::current (const Parameters::Parameter& parameter, ValueDetail detail) const
{
    if (style == ValueStyle::ownText)
        return parameter.getCurrentText();

    return write (plainOf (style, parameter), detail);
}

juce::String
ValueText::at (const Parameters::Parameter& parameter, float normalised, ValueDetail detail) const
{
    const auto text = parameter.getTextForNormalised (normalised);
    return style == ValueStyle::ownText ? text : write (Parameters::leadingNumber (text), detail);
}

juce::String ValueText::write (double plain, ValueDetail detail) const
{
    const auto more = detail == ValueDetail::shown ? 0 : 1;

    const auto text = [&]() -> juce::String {
        switch (style)
        {
        case ValueStyle::decimals:
            return fixed (plain, 2 + more);
        case ValueStyle::signedNumber:
            return withPlus (plain, 0);
        case ValueStyle::semitones:
            return withPlus (plain, 0) + " st";
        case ValueStyle::percent:
            return fixed (plain * hundred, more) + " %";
        case ValueStyle::wholePercent:
            return fixed (plain, 0) + " %";
        case ValueStyle::signedPercent:
            return withPlus (plain, 0) + " %";
        case ValueStyle::decibels:
            return writeDecibels (plain, detail);
        case ValueStyle::hertz:
            return writeHertz (plain, detail);
        case ValueStyle::seconds:
            return writeSeconds (plain, more);
        case ValueStyle::tempo:
            return fixed (plain, 2 * more);
        case ValueStyle::ownText:
            break;
        }

        return fixed (plain, 0);
    }();

    return withTrueMinus (text);
}

std::optional<juce::String> ValueText::read (const juce::String& typed,
                                             const Parameters::Parameter& parameter) const
{
    return style == ValueStyle::ownText ? readWord (typed, parameter) : readNumber (typed, style);
}

juce::String pitchName (int pitch, int middleC)
{
    return withTrueMinus (juce::MidiMessage::getMidiNoteName (pitch, false, true, middleC));
}
} // namespace Zn::GUI
