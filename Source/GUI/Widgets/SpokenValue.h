#pragma once

#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** The value of a control for screen readers: as it is shown, always with its unit. */
class SpokenValue : public juce::AccessibilityValueInterface
{
public:
    explicit SpokenValue (ValueControl& controlToRead) : control (controlToRead) {}

    bool isReadOnly() const override { return ! control.isEnabled(); }
    double getCurrentValue() const override;
    juce::String getCurrentValueAsString() const override;
    AccessibleValueRange getRange() const override;
    void setValueAsString (const juce::String& text) override { control.setFromTyped (text); }
    void setValue (double normalised) override;

private:
    ValueControl& control;
};
} // namespace Zn::GUI
