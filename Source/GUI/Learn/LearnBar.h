#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/GroupHandler.h"

namespace Zn::GUI
{
/** Takes the header's place while keys are learned: says how, and ends it. Thread: message. */
class LearnBar : public AssetScheme::Element<>
{
public:
    explicit LearnBar (EditorContext& contextToUse);

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    EditorContext& context;
    SVGPainter icon { "learn.svg" };
    Button done;
    juce::Font titleFont, textFont;
    juce::Rectangle<float> iconArea, titleArea, textArea;
};
} // namespace Zn::GUI
