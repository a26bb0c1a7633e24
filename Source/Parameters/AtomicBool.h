#pragma once

#include "Parameters/DefaultGesture.h"

namespace Zn::Parameters
{
/** A switch of the model that the audio thread reads too. The atomic must outlive it. */
class AtomicBool : public DefaultAtomic
{
public:
    AtomicBool (std::atomic<bool>& valueToUse, juce::String nameToUse, bool isOnByDefault = false);

    float getNormalised() const override { return value.load() ? 1.0f : 0.0f; }
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int newValue) override { setNormalisedNotifying (static_cast<float> (newValue)); }
    void setDouble (double newValue) override { setNormalisedNotifying (static_cast<float> (newValue)); }
    juce::String getName() const override { return name; }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return getTextForNormalised (getNormalised()); }
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;
    float getFloat() const override { return getNormalised(); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return 1; }
    MenuItems::Item getMenuChoices() override;
    float getDefault() const override { return defaultValue ? 1.0f : 0.0f; }

private:
    std::atomic<bool>& value;
    const juce::String name;
    const bool defaultValue;
};
} // namespace Zn::Parameters
