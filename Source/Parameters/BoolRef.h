#pragma once

#include "Parameters/DefaultGesture.h"

namespace Zn::Parameters
{
/** A switch of the model that one thread uses. The bool must outlive it. */
class BoolRef : public DefaultGesture
{
public:
    BoolRef (bool& valueToUse, juce::String nameToUse, bool isOnByDefault = false);

    float getNormalised() const override { return value ? 1.0f : 0.0f; }
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int newValue) override { setNormalisedNotifying (static_cast<float> (newValue)); }
    void setBool (bool newValue) override { value = newValue; }
    void setDouble (double newValue) override { setNormalisedNotifying (static_cast<float> (newValue)); }
    juce::String getName() const override { return name; }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return getTextForNormalised (getNormalised()); }
    juce::String getTextForStep (int index) const override { return index < 1 ? getOffText() : getOnText(); }
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;
    float getFloat() const override { return getNormalised(); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return 2; } // one line of its menu each
    float getDefault() const override { return defaultValue ? 1.0f : 0.0f; }

    virtual juce::String getOnText() const { return "On"; }
    virtual juce::String getOffText() const { return "Off"; }

private:
    bool& value;
    const juce::String name;
    const bool defaultValue;
};
} // namespace Zn::Parameters
