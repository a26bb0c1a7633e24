#pragma once

#include "Parameters/DefaultGesture.h"

namespace Zn::Presets
{
class Base;

/** A button to the next or the previous preset, for whatever sets parameters. Setting it to true steps; it reads
    false always. Its text is the name of the current preset, with a "*" behind it if that has been edited. It is
    saved nowhere. Thread: message.
*/
class Param : public Parameters::DefaultGesture
{
public:
    /** The library outlives the parameter. Direction: +1 or -1. */
    Param (Base& libraryToStep, int directionToStep) noexcept;

    float getNormalised() const override { return 0.0f; }
    void setRawNormalised (float normalised) override { setNormalisedNotifying (normalised); }
    void setInt (int value) override { setBool (value > 0); }
    void setDouble (double value) override { setBool (value > 0.5); }
    void reflect (Reflector&) override {}

    juce::String getName() const override;
    juce::String getTextForNormalised (float) const override { return getCurrentText(); }
    juce::String getCurrentText() const override;

    void setFromText (const juce::String&) override {}
    void setNormalisedNotifying (float normalised) override;

    float getFloat() const override { return 0.0f; }
    bool isHostVisible() const override { return false; }
    bool hasSteps() const override { return false; }
    int getNumSteps() const override { return 0; }
    float getDefault() const override { return 0.0f; }

private:
    Base* library;
    int direction;
};
} // namespace Zn::Presets
