#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** A field with the name of what is chosen; a press opens the menu of all there is to choose. Thread: message. */
class Choice : public ValueControl
{
public:
    enum class Look
    {
        field,  // with a chevron
        plain,  // the name alone, in the middle
        browser // between arrows to the one before and the one after
    };

    Choice (EditorContext& contextToUse,
            std::string element,
            std::shared_ptr<Parameters::Parameter> parameterToShow,
            Look lookToHave = Look::field);

    virtual void openMenu();

    void schemeChanged() override;
    void mouseDoubleClick (const juce::MouseEvent&) override {} // two quick clicks are two
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    void pressed (const juce::MouseEvent& event) override;
    void enter() override { openMenu(); }
    int upwards() const override { return -1; }

    const Look look;
    SVGPainter chevron { "down.svg" }, previous { "previous.svg" }, next { "next.svg" };
    juce::Rectangle<float> textArea, chevronArea, previousArea, nextArea;
    juce::Font font;
};
} // namespace Zn::GUI
