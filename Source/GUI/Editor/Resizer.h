#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** The corner by which the window is made larger. Thread: message. */
class Resizer : public Control
{
public:
    explicit Resizer (EditorContext& contextToUse);

    bool hitTest (int x, int y) override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;

    /** Of what lies inside the window. */
    juce::Rectangle<float> corner() const;

    SVGPainter icon { "resize.svg" };
    int widthAtPress = 0; // pixels
};
} // namespace Zn::GUI
