#include "GUI/Popups/SettingParam.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
SettingParam::SettingParam (Options optionsToUse) : options (std::move (optionsToUse)) {}

float SettingParam::getNormalised() const
{
    return static_cast<float> (std::max (0, options.get())) / static_cast<float> (getNumSteps());
}

/** What is none of the choices has numbers of its own, so that whoever shows it sees it change. */
float SettingParam::getFloat() const
{
    const auto index = options.get();
    const auto isOther = index < 0 && options.otherText != nullptr;
    return static_cast<float> (isOther ? -1 - options.otherText().getIntValue() : index);
}

void SettingParam::setInt (int value)
{
    if (juce::isPositiveAndBelow (value, options.choices.size()) && value != options.get())
        options.set (value);
}

int SettingParam::indexOf (float normalised) const
{
    return juce::roundToInt (normalised * static_cast<float> (getNumSteps()));
}

juce::String SettingParam::getTextForNormalised (float normalised) const
{
    return options.choices[indexOf (normalised)];
}

juce::String SettingParam::getCurrentText() const
{
    const auto index = options.get();
    return index < 0 && options.otherText != nullptr ? options.otherText() : options.choices[index];
}

void SettingParam::setFromText (const juce::String& text)
{
    setInt (options.choices.indexOf (text.trim(), true));
}

Parameters::MenuItems::Item SettingParam::getMenuChoices()
{
    Parameters::MenuItems::Item menu { .text = getName() };

    for (auto index = 0; index < options.choices.size(); ++index)
        menu.subItems.push_back (createMenuChoice (options.choices[index], index));

    menu.subItems.insert (menu.subItems.end(), options.moreLines.begin(), options.moreLines.end());
    return menu;
}
} // namespace Zn::GUI
