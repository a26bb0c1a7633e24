#include "Parameters/UpdatingConnector.h"

namespace Zn::Parameters
{
UpdatingConnector::UpdatingConnector (const Connector& connectorToWrap, CallbackFunc callbackToCopy)
    : UpdatingConnector (connectorToWrap.getTarget(), std::move (callbackToCopy))
{}

UpdatingConnector::UpdatingConnector (std::shared_ptr<Parameter> targetToShare, CallbackFunc callbackToCopy)
    : Connector (std::move (targetToShare))
    , callback (std::make_shared<const CallbackFunc> (std::move (callbackToCopy)))
{
    jassert (*callback != nullptr);
}

template <typename SetTarget>
void UpdatingConnector::setAndUpdate (SetTarget&& setTarget)
{
    const auto keptTarget = getTarget();
    const auto keptCallback = callback;

    setTarget (*keptTarget);
    (*keptCallback)();
}

void UpdatingConnector::setRawNormalised (float normalised)
{
    setAndUpdate ([normalised] (Parameter& parameter) { parameter.setRawNormalised (normalised); });
}

void UpdatingConnector::setInt (int value)
{
    setAndUpdate ([value] (Parameter& parameter) { parameter.setInt (value); });
}

void UpdatingConnector::setBool (bool value)
{
    setAndUpdate ([value] (Parameter& parameter) { parameter.setBool (value); });
}

void UpdatingConnector::setDouble (double value)
{
    setAndUpdate ([value] (Parameter& parameter) { parameter.setDouble (value); });
}

void UpdatingConnector::setFromText (const juce::String& text)
{
    setAndUpdate ([&text] (Parameter& parameter) { parameter.setFromText (text); });
}

void UpdatingConnector::setNormalisedNotifying (float normalised)
{
    setAndUpdate ([normalised] (Parameter& parameter) { parameter.setNormalisedNotifying (normalised); });
}

MenuItems::Item UpdatingConnector::getMenuChoices()
{
    auto menu = Connector::getMenuChoices();

    MenuItems::addToActions (menu, [weak = std::weak_ptr (callback)] {
        if (const auto update = weak.lock())
            (*update)();
    });

    return menu;
}
} // namespace Zn::Parameters
