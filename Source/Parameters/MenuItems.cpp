#include "Parameters/MenuItems.h"

#include "Parameters/TargetValue.h"

namespace Zn::Parameters
{
void MenuItems::Item::choose() const
{
    if (const auto both = chainFunctions (action, afterwards)) // copies: the action may destroy this line
        both();
}

void MenuItems::setRecursiveFunc (Item& menu, CallbackFunc callback)
{
    for (auto& item : menu.subItems)
        setRecursiveFunc (item, callback);

    menu.afterwards = std::move (callback);
}

void MenuItems::addToActions (Item& menu, const CallbackFunc& callback)
{
    for (auto& item : menu.subItems)
        addToActions (item, callback);

    if (menu.action != nullptr)
        menu.action = chainFunctions (std::move (menu.action), callback);
}

void MenuItems::holdWeakly (Item& menu, const std::weak_ptr<const void>& owner)
{
    for (auto& item : menu.subItems)
        holdWeakly (item, owner);

    if (menu.isSelected != nullptr)
        menu.isSelected = [owner, isSelected = std::move (menu.isSelected)] {
            const auto kept = owner.lock();
            return kept != nullptr && isSelected();
        };

    if (menu.action != nullptr)
        menu.action = [owner, action = std::move (menu.action)] {
            if (const auto kept = owner.lock())
                action();
        };
}

namespace
{
CallbackFunc
setInOneGesture (juce::RangedAudioParameter& target, juce::AudioProcessorParameter* hostSide, int value)
{
    return [&target, hostSide, value] {
        auto* gestures = gestureParameterOf (target, hostSide);

        if (gestures != nullptr)
            gestures->beginChangeGesture();

        setWholeNumber (target, value);

        if (gestures != nullptr)
            gestures->endChangeGesture();
    };
}
} // namespace

MenuItems::Item getMenuChoicesFor (juce::AudioParameterInt& target, juce::AudioProcessorParameter* hostSide)
{
    MenuItems::Item menu { .text = target.name };
    const auto range = target.getRange();

    for (auto value = range.getEnd(); value >= range.getStart(); --value)
        menu.subItems.push_back ({ .text = textOf (target, target.convertTo0to1 (static_cast<float> (value))),
                                   .isSelected = [&target, value] { return target.get() == value; },
                                   .action = setInOneGesture (target, hostSide, value) });

    return menu;
}

MenuItems::Item createMenuChoiceFor (juce::AudioParameterChoice& target,
                                     int index,
                                     const juce::String& text,
                                     juce::AudioProcessorParameter* hostSide)
{
    return { .text = text,
             .isSelected = [&target, index] { return target.getIndex() == index; },
             .action = setInOneGesture (target, hostSide, index) };
}
} // namespace Zn::Parameters
