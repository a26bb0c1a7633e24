#pragma once

#include "Parameters/DefaultGesture.h"

#include <functional>
#include <vector>

namespace Zn::GUI
{
/** A setting of the user's as a value that controls can show: one of a few choices. Thread: message. */
class SettingParam : public Parameters::DefaultGesture
{
public:
    struct Options
    {
        juce::String name;
        juce::StringArray choices;
        std::function<int()> get; // the index of the choice, or -1: none of them
        std::function<void (int)> set;
        std::function<juce::String()> otherText {};            // while it is none of them
        std::vector<Parameters::MenuItems::Item> moreLines {}; // below the choices in a menu
    };

    explicit SettingParam (Options optionsToUse);

    float getNormalised() const override;
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int value) override;
    void setDouble (double value) override { setInt (juce::roundToInt (value)); }
    juce::String getName() const override { return options.name; }
    juce::String getTextForNormalised (float normalised) const override;
    juce::String getCurrentText() const override;
    void setFromText (const juce::String& text) override;
    void setNormalisedNotifying (float normalised) override { setInt (indexOf (normalised)); }
    Parameters::MenuItems::Item getMenuChoices() override;
    float getFloat() const override;
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return true; }
    int getNumSteps() const override { return options.choices.size() - 1; }
    float getDefault() const override { return 0.0f; }

private:
    int indexOf (float normalised) const;

    const Options options;
};
} // namespace Zn::GUI
