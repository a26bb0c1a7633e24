#pragma once

#include "GUI/Widgets/LabelFit.h"
#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** A knob with its label above and its value below. One for a value with a sign draws its arc from the middle; few steps
    are marked by dots. Thread: message.
*/
class Knob : public ValueControl, public ShortensLabel
{
public:
    Knob (EditorContext& contextToUse,
          std::string element,
          std::shared_ptr<Parameters::Parameter> parameterToShow);

    bool labelFits() const override;
    void setShortLabel (bool shouldBeShort) override;

    void schemeChanged() override;

private:
    void paintControl (juce::Graphics& g) override;
    juce::Rectangle<int> valueArea() const override { return valueLine; }
    void valueChanged() override;
    juce::Rectangle<float> learnArea() const override;

    void paintTicks (juce::Graphics& g) const;
    float angleOf (float position) const;
    juce::Path arc (float from, float to) const;

    bool shortened = false;
    const bool isBipolar;

    juce::Font font;
    juce::Rectangle<int> labelLine, valueLine;
    juce::Point<float> centre;
    float radius = 0.0f; // of the middle of the arc's stroke
    juce::Path track, filled, pointer;
};
} // namespace Zn::GUI
