#include "Parameters/BoolRef.h"

#include "Parameters/ParameterText.h"

#include <cmath>

namespace Zn::Parameters
{
BoolRef::BoolRef (bool& valueToUse, juce::String nameToUse, bool isOnByDefault)
    : value (valueToUse), name (std::move (nameToUse)), defaultValue (isOnByDefault)
{}

juce::String BoolRef::getTextForNormalised (float normalised) const
{
    return normalised > 0.5f ? getOnText() : getOffText();
}

void BoolRef::setFromText (const juce::String& text)
{
    const auto word = text.trim();
    setBool (! word.equalsIgnoreCase (getOffText())
             && (word.equalsIgnoreCase (getOnText()) || isOnText (word)));
}

void BoolRef::setNormalisedNotifying (float normalised)
{
    if (std::isfinite (normalised))
        setBool (normalised > 0.5f);
}
} // namespace Zn::Parameters
