#pragma once

#include "Parameters/DefaultGesture.h"

namespace Zn::GUI
{
/** The folder that a preset is going to be saved in: one that is there, or a new one that is typed. Thread: message. */
class CategoryParam : public Parameters::DefaultGesture
{
public:
    CategoryParam (juce::StringArray existingCategories, juce::String first, CallbackFunc askForNew);

    /** Empty: in no folder. */
    const juce::String& get() const noexcept { return category; }
    void set (const juce::String& newCategory);

    Parameters::MenuItems::Item getMenuChoices() override;

    float getNormalised() const override;
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setNormalisedNotifying (float normalised) override;
    void setInt (int value) override;
    void setDouble (double value) override { setInt (juce::roundToInt (value)); }
    void reflect (Reflector&) override {}

    juce::String getName() const override { return "Category"; }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override { return textOf (category); }
    void setFromText (const juce::String& text) override { set (text); }

    /** Tells each category from every other. */
    float getFloat() const override { return static_cast<float> (index()); }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return std::max (1, categories.size() - 1); }
    float getDefault() const override { return 0.0f; }

private:
    static juce::String textOf (const juce::String& category);
    int index() const { return categories.indexOf (category); }

    juce::StringArray categories; // the first is none
    juce::String category;
    const CallbackFunc onAskForNew;
};
} // namespace Zn::GUI
