#include "Parameters/ConnectedState.h"

#include "Parameters/ParameterText.h"

#include <cmath>

namespace Zn::Parameters
{
ConnectedState::ConnectedState (std::shared_ptr<Parameter> targetToShare, int onIndexToUse, int offIndexToUse)
    : target (std::move (targetToShare)), onIndex (onIndexToUse), offIndex (offIndexToUse)
{
    jassert (target != nullptr);
}

juce::String ConnectedState::getTextForNormalised (float normalised) const
{
    return onOffText (normalised > 0.5f);
}

void ConnectedState::setFromText (const juce::String& text)
{
    setBool (isOnText (text));
}

void ConnectedState::setNormalisedNotifying (float normalised)
{
    const auto kept = target; // the change may destroy this

    if (std::isfinite (normalised))
        kept->setInt (normalised > 0.5f ? onIndex : offIndex);
}

MenuItems::Item ConnectedState::getMenuChoices()
{
    MenuItems::Item menu { .text = getName() };

    for (auto index : { 0, 1 })
        menu.subItems.push_back (createMenuChoice (getTextForStep (index), index));

    return menu;
}

float ConnectedState::getDefault() const
{
    return target->getTextForNormalised (target->getDefault()) == target->getTextForStep (onIndex) ? 1.0f
                                                                                                   : 0.0f;
}

void ConnectedState::beginGesture()
{
    const auto kept = target;
    kept->beginGesture();
}

void ConnectedState::endGesture()
{
    const auto kept = target;
    kept->endGesture();
}
} // namespace Zn::Parameters
