#pragma once

#include "Parameters/DefaultGesture.h"

#include <string>
#include <vector>

namespace Zn::Parameters
{
/** A whole number of the model; a class derived from it says where it is kept and what it may be.

    A value outside the range is shown as it is and stands at the nearest end; only setting limits it.
*/
class IntLike : public DefaultGesture
{
public:
    explicit IntLike (juce::String nameToUse) : name (std::move (nameToUse)) {}

    float getNormalised() const override { return normalisedFrom (getIntValue()); }
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int newValue) override { setDouble (double (newValue)); }
    void setDouble (double newValue) override;
    juce::String getName() const override { return name; }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return juce::String (getIntValue()); }
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override;

    /** One line for each of getChoiceTexts(). */
    MenuItems::Item getMenuChoices() override;

    float getFloat() const override { return static_cast<float> (getIntValue()); }
    int getInt() const override { return getIntValue(); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override;

    /** The lowest and highest value and how they spread over the control. With an interval of 1 a proportion is
        rounded to the nearest value, without one it is cut off to the next lower.
    */
    virtual juce::NormalisableRange<float> getRange() const = 0;

    /** The values as text, from the lowest; the highest, which closes the range, is not among them. */
    virtual std::vector<std::string> getChoiceTexts() const;

    virtual int getIntValue() const = 0;
    virtual void setIntValue (int newValue) = 0;

protected:
    float normalisedFrom (int value) const;

private:
    int valueFrom (float normalised) const;

    const juce::String name;
};

template <typename T>
class IntRef;

/** A whole number that one thread uses. The int must outlive it. */
template <>
class IntRef<int> : public IntLike
{
public:
    IntRef (int& valueToUse, juce::String nameToUse, int minimum, int maximum, int defaultToUse);

    float getDefault() const override { return normalisedFrom (defaultValue); }
    juce::NormalisableRange<float> getRange() const override { return range; }
    int getIntValue() const override { return value; }
    void setIntValue (int newValue) override { value = newValue; }

private:
    int& value;
    const juce::NormalisableRange<float> range;
    const int defaultValue;
};
} // namespace Zn::Parameters
