#include "Parameters/AtomicBool.h"

#include "Parameters/ParameterText.h"

#include <cmath>

namespace Zn::Parameters
{
AtomicBool::AtomicBool (std::atomic<bool>& valueToUse, juce::String nameToUse, bool isOnByDefault)
    : value (valueToUse), name (std::move (nameToUse)), defaultValue (isOnByDefault)
{}

juce::String AtomicBool::getTextForNormalised (float normalised) const
{
    return onOffText (normalised > 0.5f);
}

void AtomicBool::setFromText (const juce::String& text)
{
    value.exchange (isOnText (text));
}

void AtomicBool::setNormalisedNotifying (float normalised)
{
    if (std::isfinite (normalised))
        value.exchange (normalised > 0.5f);
}

MenuItems::Item AtomicBool::getMenuChoices()
{
    MenuItems::Item menu { .text = name };

    for (auto index : { 0, 1 })
        menu.subItems.push_back (createMenuChoice (getTextForStep (index), index));

    return menu;
}
} // namespace Zn::Parameters
