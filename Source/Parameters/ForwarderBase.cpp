#include "Parameters/ForwarderBase.h"

namespace Zn::Parameters
{
using HostForwarder = ForwarderBase<juce::AudioProcessorParameter>;

HostForwarder::ForwarderBase (juce::AudioProcessorParameter& targetToUse)
    : target (&targetToUse), floatTarget (dynamic_cast<const juce::AudioParameterFloat*> (target))
{}

bool HostForwarder::differsFrom (float normalised, float plain) const
{
    // Of a float the form that JUCE stores: the other would take a curved range each time.
    return floatTarget != nullptr ? floatTarget->get() != plain : target->getValue() != normalised;
}

void HostForwarder::setRawNormalised (float normalised)
{
    if (const auto legal = legalNormalised (*target, normalised))
        target->setValue (*legal);
}

MenuItems::Item HostForwarder::getMenuChoices()
{
    MenuItems::Item menu { .text = getName() };

    if (hasSteps())
        for (auto step = 0; step <= getNumSteps(); ++step)
            menu.subItems.push_back (createMenuChoice (getTextForStep (step), step));

    return menu;
}

int HostForwarder::getNumSteps() const
{
    // Not what JUCE calls discrete, which its whole numbers are not; and its count is of values, not of steps.
    const auto isStepped = dynamic_cast<const juce::AudioParameterInt*> (target) != nullptr
                           || dynamic_cast<const juce::AudioParameterChoice*> (target) != nullptr
                           || dynamic_cast<const juce::AudioParameterBool*> (target) != nullptr;

    return isStepped ? target->getNumSteps() - 1 : 0;
}
} // namespace Zn::Parameters
