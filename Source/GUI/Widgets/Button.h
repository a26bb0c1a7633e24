#pragma once

#include "Foundation/CallbackFunc.h"
#include "GUI/Widgets/Caption.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** A text, an icon, or both, that does something when it is clicked. Thread: message. */
class Button : public Control
{
public:
    enum class Look
    {
        quiet,  // nothing behind it until the pointer is over it
        filled, // as the fields
        primary // what a pop-up is for
    };

    struct Options
    {
        std::optional<juce::String> text {}; // else the label of the control's texts
        juce::String icon {};                // a file
        Look look = Look::filled;
        std::string_view accent = {};      // a colour: of the icon, or of the fill of a primary one
        std::string_view fill = "Control"; // a colour
        std::string_view iconSize = "IconSize";
        Caption::Arrangement arrangement = Caption::Arrangement::centred;
    };

    Button (EditorContext& contextToUse,
            std::string element,
            Options optionsToUse,
            CallbackFunc onClickToUse);

    void setLabel (const juce::String& newLabel);
    void setIcon (const juce::String& newIcon);
    void click();

    void schemeChanged() override { caption.layOut (context.canvas, area()); }
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;

    const Options options;
    const CallbackFunc onClick;
    Caption caption;
};
} // namespace Zn::GUI
