#include "Parameters/IntLike.h"

#include "Parameters/ParameterText.h"

#include <cmath>

namespace Zn::Parameters
{
float IntLike::normalisedFrom (int value) const
{
    const auto range = getRange();
    return range.convertTo0to1 (juce::jlimit (range.start, range.end, static_cast<float> (value)));
}

int IntLike::valueFrom (float normalised) const
{
    const auto range = getRange();
    return static_cast<int> (
        range.snapToLegalValue (range.convertFrom0to1 (juce::jlimit (0.0f, 1.0f, normalised))));
}

void IntLike::setDouble (double newValue)
{
    if (! std::isfinite (newValue))
        return;

    const auto range = getRange();
    const auto limited = juce::jlimit (double (range.start), double (range.end), newValue);
    setIntValue (static_cast<int> (range.snapToLegalValue (static_cast<float> (limited))));
}

juce::String IntLike::getTextForNormalised (float normalised) const
{
    return juce::String (std::isfinite (normalised) ? valueFrom (normalised) : getIntValue());
}

void IntLike::setFromText (const juce::String& text)
{
    setDouble (std::round (finiteNumber (text)));
}

void IntLike::setNormalisedNotifying (float normalised)
{
    if (std::isfinite (normalised))
        setIntValue (valueFrom (normalised));
}

MenuItems::Item IntLike::getMenuChoices()
{
    MenuItems::Item menu { .text = name };

    for (const auto& text : getChoiceTexts())
        menu.subItems.push_back (createMenuChoice (text, juce::String (text).getIntValue()));

    return menu;
}

int IntLike::getNumSteps() const
{
    const auto range = getRange();
    return static_cast<int> (std::max (range.end, range.start) - range.start);
}

std::vector<std::string> IntLike::getChoiceTexts() const
{
    const auto range = getRange();
    std::vector<std::string> texts;

    for (auto value = static_cast<int> (range.start); value < static_cast<int> (range.end); ++value)
        texts.push_back (std::to_string (value));

    return texts;
}

IntRef<int>::IntRef (int& valueToUse, juce::String nameToUse, int minimum, int maximum, int defaultToUse)
    : IntLike (std::move (nameToUse))
    , value (valueToUse)
    , range (static_cast<float> (minimum), static_cast<float> (maximum), 1.0f)
    , defaultValue (defaultToUse)
{}
} // namespace Zn::Parameters
