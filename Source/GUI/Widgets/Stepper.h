#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** A whole number between a minus and a plus. Thread: message. */
class Stepper : public ValueControl
{
public:
    Stepper (EditorContext& contextToUse,
             std::string element,
             std::shared_ptr<Parameters::Parameter> parameterToShow);

    void schemeChanged() override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    void mouseMove (const juce::MouseEvent& event) override;

private:
    void paintControl (juce::Graphics& g) override;
    juce::Rectangle<int> valueArea() const override { return value; }
    void pressed (const juce::MouseEvent& event) override;

    SVGPainter minus { "minus.svg" }, plus { "plus.svg" };
    juce::Rectangle<int> value;
    juce::Rectangle<float> minusArea, plusArea;
    juce::Font font;
};
} // namespace Zn::GUI
