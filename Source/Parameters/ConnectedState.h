#pragma once

#include "Parameters/Parameter.h"

#include <memory>

namespace Zn::Parameters
{
/** One value of a selector as a switch, for a button of its own: on while the target has that value, off with every
    other one. Switching it off sets another given value.
*/
class ConnectedState : public Parameter
{
public:
    /** The values as the target's setInt() takes them. */
    ConnectedState (std::shared_ptr<Parameter> targetToShare, int onIndexToUse, int offIndexToUse);

    float getNormalised() const override { return target->getInt() == onIndex ? 1.0f : 0.0f; }

    /** Tells the host, as a target has no other way to take a whole number. */
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }

    void setInt (int value) override { setNormalisedNotifying (static_cast<float> (value)); }
    void setDouble (double value) override { setNormalisedNotifying (static_cast<float> (value)); }
    juce::String getName() const override { return target->getName(); }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return getTextForNormalised (getNormalised()); }
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;
    MenuItems::Item getMenuChoices() override;
    float getFloat() const override { return getNormalised(); }
    bool isHostVisible() const override { return target->isHostVisible(); }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return 1; }

    /** On when the target's default reads as its step `onIndex`. */
    float getDefault() const override;

    bool isGestureActive() const override { return target->isGestureActive(); }
    void beginGesture() override;
    void endGesture() override;

private:
    const std::shared_ptr<Parameter> target; // never null
    const int onIndex, offIndex;
};
} // namespace Zn::Parameters
