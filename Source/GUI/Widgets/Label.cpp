#include "GUI/Widgets/Label.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
namespace
{
constexpr auto narrowestSqueeze = 0.85f; // of a text's width, before it is cut
}

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
    g.setFont (font);
    g.setColour (AssetScheme::Base::get().colourOf (options.colour));
    g.drawFittedText (shortened ? options.shortText : text,
                      getLocalBounds(),
                      options.justification,
                      1,
                      narrowestSqueeze);
}
} // namespace Zn::GUI
