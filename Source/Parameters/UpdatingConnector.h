#pragma once

#include "Parameters/Connector.h"

namespace Zn::Parameters
{
/** A connector that calls a function whenever it has set a value, also as text and through its menu, be it another
    one or the same; not when someone else sets the target. The function may destroy the connector.
*/
class UpdatingConnector : public Connector
{
public:
    /** Shares the target of a connector. The function must not be empty. */
    UpdatingConnector (const Connector& connectorToWrap, CallbackFunc callbackToCopy);

    /** Wraps any parameter; one that is an UpdatingConnector itself calls its own function first. */
    UpdatingConnector (std::shared_ptr<Parameter> targetToShare, CallbackFunc callbackToCopy);

    void setRawNormalised (float normalised) override;
    void setInt (int value) override;
    void setBool (bool value) override;
    void setDouble (double value) override;
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;
    MenuItems::Item getMenuChoices() override;

private:
    template <typename SetTarget>
    void setAndUpdate (SetTarget&& setTarget);

    const std::shared_ptr<const CallbackFunc> callback; // shared with a call that is under way
};
} // namespace Zn::Parameters
