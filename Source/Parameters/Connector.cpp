#include "Parameters/Connector.h"

namespace Zn::Parameters
{
Connector::Connector (Parameter* targetToOwn) : Connector (std::shared_ptr<Parameter> (targetToOwn)) {}

Connector::Connector (std::shared_ptr<Parameter> targetToShare) : target (std::move (targetToShare))
{
    jassert (target != nullptr);
}

juce::String Connector::getTextForNormalised (float normalised) const
{
    return target->getTextForNormalised (normalised);
}

MenuItems::Item Connector::getMenuChoices()
{
    auto menu = target->getMenuChoices();
    MenuItems::holdWeakly (menu, target);
    return menu;
}
} // namespace Zn::Parameters
