#pragma once

#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** The master volume in decibels, beside its slider, where Tab stops; this has the keyboard only after a press.
    Thread: message.
*/
class MasterValue : public ValueControl
{
public:
    MasterValue (EditorContext& contextToUse, std::string element);

    void schemeChanged() override;
    void focusLost (FocusChangeType cause) override;

private:
    void paintControl (juce::Graphics& g) override;
    juce::Rectangle<int> valueArea() const override { return getLocalBounds(); }
    void pressed (const juce::MouseEvent& event) override;
    void valueChanged() override;
    bool showsHover() const override { return false; }

    juce::String text;
    juce::Font font;
};
} // namespace Zn::GUI
