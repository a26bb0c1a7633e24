#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Caption.h"
#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** Something that is on or off; a press flips it. Thread: message. */
class Toggle : public ValueControl
{
public:
    enum class Look
    {
        button, // filled while it is on
        power,  // the title of a card, with a power sign
        pill,   // a switch
        box     // a check box before its text
    };

    struct Options
    {
        Look look = Look::button;
        juce::String icon {};                // a file
        std::optional<juce::String> text {}; // else the label of the control's texts
        std::string_view accent = "Pattern"; // a colour, with a "Deep" one for the fill
        Caption::Arrangement arrangement = Caption::Arrangement::centred;
        std::string_view iconSize = "IconSize";
    };

    Toggle (EditorContext& contextToUse,
            std::string element,
            std::shared_ptr<Parameters::Parameter> parameterToShow,
            Options optionsToUse);

    bool isOn() const { return getParameter()->getBool(); }
    void setOn (bool shouldBeOn);

    /** What stands on it, where that changes. */
    void setLabel (const juce::String& newLabel);

    void schemeChanged() override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent&) override {} // two quick clicks are two
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    void enter() override { setOn (! isOn()); }

    /** Up is on and down is off, whatever steps the parameter has. */
    void moveBy (int steps) override
    {
        changeJoining ([steps] (auto& target) { target.setBool (steps > 0); });
    }

    bool isOfKindOf (const Toggle& other) const;
    void paintOver (Toggle& other, bool on);
    void endStroke();
    bool restoreDrag() override;
    void pressed (const juce::MouseEvent& event) override;
    juce::Rectangle<float> learnArea() const override;
    juce::Rectangle<float> pillArea() const;
    void paintButton (juce::Graphics& g);
    void paintPill (juce::Graphics& g);
    void paintBox (juce::Graphics& g);

    const Options options;
    const std::string accent, fill;
    Caption caption;
    std::vector<std::unique_ptr<ParameterEdit>> stroke; // what it has flipped while it is pressed
    SVGPainter check { "check.svg" };
};
} // namespace Zn::GUI
