#include "GUI/Widgets/Label.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/TextLine.h"

namespace Zn::GUI
{
Label::Label (EditorContext& context, std::string element, juce::String textToShow)
    : Label (context, std::move (element), std::move (textToShow), Options())
{}

Label::Label (EditorContext& context, std::string element, juce::String textToShow, Options optionsToUse)
    : Element (context.canvas, std::move (element))
    , options (std::move (optionsToUse))
    , text (std::move (textToShow))
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
}

void Label::setText (const juce::String& newText)
{
    if (text == newText)
        return;

    text = newText;
    repaint();
}

void Label::setDoubleClick (CallbackFunc action)
{
    doubleClicked = std::move (action);
    setInterceptsMouseClicks (true, false);
    setMouseClickGrabsKeyboardFocus (false);
}

void Label::mouseDoubleClick (const juce::MouseEvent& event)
{
    if (event.mods.isLeftButtonDown())
        doubleClicked();
}

void Label::setColour (std::string_view newColour)
{
    if (std::exchange (options.colour, newColour) != newColour)
        repaint();
}

bool Label::labelFits() const
{
    const auto& canvas = const_cast<Label*> (this)->getCanvas();
    const auto width = static_cast<float> (canvas.boundsOf (getElement()).getWidth());
    return canvas.fontOf (options.font, options.cut).getStringWidthFloat (text) <= width;
}

void Label::setShortLabel (bool shouldBeShort)
{
    const auto canBeShort = options.shortText.isNotEmpty();

    if (std::exchange (shortened, shouldBeShort && canBeShort) != (shouldBeShort && canBeShort))
        repaint();
}

void Label::schemeChanged()
{
    font = getCanvas().fontOf (options.font, options.cut);
}

void Label::paint (juce::Graphics& g)
{
    paintTextLine (g,
                   shortened ? options.shortText : text,
                   font,
                   getLocalBounds().toFloat(),
                   options.justification,
                   AssetScheme::Base::get().colourOf (options.colour));
}
} // namespace Zn::GUI
