#pragma once

#include "Parameters/Parameter.h"

#include <memory>

namespace Zn::Parameters
{
/** What a widget holds of a value: the whole façade, passed on to a target that connectors share and that the last
    of them destroys.

    What a call sets off may destroy the connector, for instance a change that rebuilds the editor: the target lives
    until the call is over. A target refers to the model, so no connector may outlive the processor.
*/
class Connector : public Parameter
{
public:
    /** Takes the target over: never the address of something that has an owner. */
    explicit Connector (Parameter* targetToOwn);

    /** Shares a target, for instance that of another connector, or takes over what a std::unique_ptr holds. */
    explicit Connector (std::shared_ptr<Parameter> targetToShare);

    Connector (const Connector&) = delete;
    Connector& operator= (const Connector&) = delete;

    /** Never null. What runs later, such as an answer to a dialogue, keeps a std::weak_ptr to it. */
    const std::shared_ptr<Parameter>& getTarget() const noexcept { return target; }

    float getNormalised() const override { return target->getNormalised(); }
    void setRawNormalised (float normalised) override { kept()->setRawNormalised (normalised); }
    void setInt (int value) override { kept()->setInt (value); }
    void setBool (bool value) override { kept()->setBool (value); }
    void setDouble (double value) override { kept()->setDouble (value); }
    juce::String getName() const override { return target->getName(); }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return target->getCurrentText(); }
    void setFromText (const juce::String& text) override { kept()->setFromText (text); }
    void setNormalisedNotifying (float normalised) override { kept()->setNormalisedNotifying (normalised); }

    /** The target's menu. It may outlive all connectors: without the target its lines are unticked and do nothing. */
    MenuItems::Item getMenuChoices() override;

    float getFloat() const override { return target->getFloat(); }
    bool differsFrom (float normalised, float plain) const override
    {
        return target->differsFrom (normalised, plain);
    }
    int getInt() const override { return target->getInt(); }
    bool getBool() const override { return target->getBool(); }
    bool isHostVisible() const override { return target->isHostVisible(); }
    bool hasSteps() const override { return target->hasSteps(); }
    int getNumSteps() const override { return target->getNumSteps(); }
    float getDefault() const override { return target->getDefault(); }
    bool isGestureActive() const override { return target->isGestureActive(); }
    void beginGesture() override { kept()->beginGesture(); }
    void endGesture() override { kept()->endGesture(); }

private:
    /** A reference of the caller's own, for the length of a call. */
    std::shared_ptr<Parameter> kept() const noexcept { return target; }

    const std::shared_ptr<Parameter> target;
};
} // namespace Zn::Parameters
