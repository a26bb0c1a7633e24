#pragma once

#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** The master volume in decibels, beside its slider, which has the keyboard. Thread: message. */
class MasterValue : public ValueControl
{
public:
    MasterValue (EditorContext& contextToUse, std::string element);

    void schemeChanged() override;

private:
    void paintControl (juce::Graphics& g) override;
    juce::Rectangle<int> valueArea() const override { return getLocalBounds(); }

    juce::Font font;
};
} // namespace Zn::GUI
