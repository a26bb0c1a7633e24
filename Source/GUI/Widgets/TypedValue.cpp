#include "GUI/Widgets/TypedValue.h"

#include "Parameters/ParameterText.h"

#include <algorithm>
#include <initializer_list>

namespace Zn::GUI
{
namespace
{
constexpr double hundred = 100.0; // percent in a whole
constexpr double thousand = 1000.0;
constexpr double lowestHertz = 10.0;
constexpr double longestSeconds = 1.0;
constexpr int decimalsKept = 6;

struct Typed
{
    double number;
    bool hasPoint;
    juce::String unit; // lower case

    bool isIn (std::initializer_list<const char*> units) const
    {
        return std::any_of (units.begin(), units.end(), [this] (const char* each) { return unit == each; });
    }
};

/** Plain signs, lower case, and no blanks around. */
juce::String simplified (const juce::String& typed)
{
    constexpr juce::juce_wchar trueMinus = 0x2212, infinity = 0x221e;

    return typed.replaceCharacter (trueMinus, '-')
        .replaceCharacter (',', '.')
        .replace (juce::String::charToString (infinity), "inf")
        .trim()
        .toLowerCase();
}

std::optional<Typed> split (const juce::String& text)
{
    const auto unsignedText =
        text.startsWithChar ('-') || text.startsWithChar ('+') ? text.substring (1) : text;
    const auto digits = unsignedText.initialSectionContainingOnly ("0123456789.");
    const auto isNumber = digits.containsAnyOf ("0123456789") && digits.retainCharacters (".").length() <= 1;

    if (! isNumber)
        return {};

    const auto number = Parameters::finiteNumber (digits.startsWithChar ('.') ? "0" + digits : digits);
    return Typed { .number = text.startsWithChar ('-') ? -number : number,
                   .hasPoint = digits.containsChar ('.'),
                   .unit = unsignedText.substring (digits.length()).trim() };
}

std::optional<double> hertzOf (const Typed& typed)
{
    if (typed.isIn ({ "k", "khz" }) || (typed.unit.isEmpty() && typed.number < lowestHertz))
        return typed.number * thousand;

    return typed.isIn ({ "", "hz" }) ? std::optional (typed.number) : std::nullopt;
}

std::optional<double> secondsOf (const Typed& typed)
{
    if (typed.isIn ({ "ms" }) || (typed.unit.isEmpty() && typed.number > longestSeconds))
        return typed.number / thousand;

    return typed.isIn ({ "", "s", "sec" }) ? std::optional (typed.number) : std::nullopt;
}

/** "0.5" is a half, as the host shows it; "50" and "1" are percent. */
std::optional<double> proportionOf (const Typed& typed)
{
    if (typed.unit.isEmpty() && typed.hasPoint && typed.number <= 1.0)
        return typed.number;

    return typed.isIn ({ "", "%" }) ? std::optional (typed.number / hundred) : std::nullopt;
}

std::optional<double> numberOf (const Typed& typed, ValueStyle style)
{
    const auto within = [&typed] (std::initializer_list<const char*> units) {
        return typed.isIn (units) ? std::optional (typed.number) : std::nullopt;
    };

    switch (style)
    {
    case ValueStyle::hertz:
        return hertzOf (typed);
    case ValueStyle::seconds:
        return secondsOf (typed);
    case ValueStyle::percent:
        return proportionOf (typed);
    case ValueStyle::wholePercent:
    case ValueStyle::signedPercent:
        return within ({ "", "%" });
    case ValueStyle::decibels:
        return within ({ "", "db" });
    case ValueStyle::semitones:
        return within ({ "", "st" });
    case ValueStyle::tempo:
        return within ({ "", "bpm" });
    case ValueStyle::decimals:
    case ValueStyle::signedNumber:
    case ValueStyle::ownText:
        break;
    }

    return within ({ "" });
}

bool isNumeric (const juce::String& text)
{
    return text.isNotEmpty() && text.containsOnly ("-0123456789");
}

bool isSwitchWord (const juce::String& word)
{
    return juce::StringArray { "on", "off", "yes", "no", "true", "false", "1", "0" }.contains (word);
}
} // namespace

std::optional<juce::String> readNumber (const juce::String& typed, ValueStyle style)
{
    const auto text = simplified (typed);

    if (style == ValueStyle::decibels && (text == "-inf" || text == "-inf db"))
        return "-100";

    const auto parts = split (text);
    const auto number = parts ? numberOf (*parts, style) : std::nullopt;

    return number ? std::optional (juce::String (*number, decimalsKept)) : std::nullopt;
}

std::optional<juce::String> readWord (const juce::String& typed, const Parameters::Parameter& parameter)
{
    const auto word = simplified (typed);

    for (auto step = 0; step <= parameter.getNumSteps(); ++step)
        if (const auto text = parameter.getTextForStep (step); simplified (text) == word && word.isNotEmpty())
            return text;

    const auto lowest = parameter.getTextForNormalised (0.0f);

    if (lowest.equalsIgnoreCase ("off") && isSwitchWord (word))
        return word;

    const auto parts = split (word);
    const auto isNumber = parts && parts->unit.isEmpty() && isNumeric (lowest);
    return isNumber ? std::optional (juce::String (juce::roundToInt (parts->number))) : std::nullopt;
}
} // namespace Zn::GUI
