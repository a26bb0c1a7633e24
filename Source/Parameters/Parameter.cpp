#include "Parameters/Parameter.h"

#include "Parameters/ReflectedText.h"

namespace Zn::Parameters
{
void Parameter::setBool (bool value)
{
    setNormalisedNotifying (value ? 1.0f : 0.0f);
}

void Parameter::reflect (Reflector& r)
{
    reflectText (
        r,
        "value",
        [this] { return getCurrentText(); },
        [this] (const auto& text) { setFromText (text); });
}

juce::String Parameter::getTextForStep (int index) const
{
    const auto numSteps = getNumSteps();

    if (! hasSteps() || numSteps < 1)
        return {};

    return getTextForNormalised (static_cast<float> (index) / static_cast<float> (numSteps));
}

MenuItems::Item Parameter::getMenuChoices()
{
    MenuItems::Item menu { .text = getName() };

    for (auto index = 0; index < getNumSteps(); ++index)
        menu.subItems.push_back (createMenuChoice (getTextForStep (index), index));

    return menu;
}

int Parameter::getInt() const
{
    return static_cast<int> (getFloat());
}

bool Parameter::getBool() const
{
    return getNormalised() > 0.5f;
}

MenuItems::Item Parameter::createMenuChoice (const juce::String& text, int value)
{
    return { .text = text,
             .isSelected = [this, value] { return getInt() == value; },
             .action =
                 [this, value] {
                     beginGesture();
                     setInt (value);
                     endGesture();
                 } };
}
} // namespace Zn::Parameters
