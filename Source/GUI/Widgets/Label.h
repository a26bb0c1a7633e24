#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"
#include "GUI/Widgets/LabelFit.h"

namespace Zn::GUI
{
/** A line of text, which lets the pointer through unless a double-click on it does something. Screen readers have it as
    the name of its control. Thread: message.
*/
class Label : public AssetScheme::Element<>, public ShortensLabel
{
public:
    struct Options
    {
        std::string_view font = "FontBody"; // a constant
        std::string_view colour = "TextSecondary";
        AssetScheme::Cut cut = AssetScheme::Cut::regular;
        juce::Justification justification = juce::Justification::centredLeft;
        juce::String shortText {}; // where the text does not fit
    };

    Label (EditorContext& context, std::string element, juce::String textToShow, Options optionsToUse);
    Label (EditorContext& context, std::string element, juce::String textToShow);

    void setText (const juce::String& newText);
    const juce::String& getText() const noexcept { return text; }

    /** What a double-click does. */
    void setDoubleClick (CallbackFunc action);

    /** Another colour of the scheme. */
    void setColour (std::string_view newColour);

    bool labelFits() const override;
    void setShortLabel (bool shouldBeShort) override;

    void schemeChanged() override;
    void paint (juce::Graphics& g) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;

private:
    Options options;
    juce::String text;
    CallbackFunc doubleClicked = [] {};
    bool shortened = false;
    juce::Font font;
};
} // namespace Zn::GUI
