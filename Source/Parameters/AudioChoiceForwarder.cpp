#include "Parameters/AudioChoiceForwarder.h"

namespace Zn::Parameters
{
AudioChoiceForwarder::AudioChoiceForwarder (juce::AudioParameterChoice& targetToUse,
                                            juce::AudioProcessorParameter* hostSideToUse)
    : AudioParamForwarderBase (targetToUse, hostSideToUse), choice (targetToUse)
{}

juce::String AudioChoiceForwarder::getTextForNormalised (float normalised) const
{
    const auto legal = legalNormalised (choice, normalised).value_or (0.0f);
    return getChoiceText (juce::roundToInt (choice.convertFrom0to1 (legal)));
}

MenuItems::Item AudioChoiceForwarder::getMenuChoices()
{
    MenuItems::Item menu { .text = getName() };

    for (auto index = choice.choices.size() - 1; index >= 0; --index)
        menu.subItems.push_back (createMenuChoiceFor (choice, index, getChoiceText (index), getHostSide()));

    return menu;
}

juce::String AudioChoiceForwarder::getChoiceText (int index) const
{
    return choice.choices[index];
}
} // namespace Zn::Parameters
